#include "engine/draw/PixelBuffer.h"

namespace korvane {

bool PixelBuffer::Allocate(std::size_t bytes) {
    constexpr std::size_t kAlignment = 64;
    std::size_t space = bytes + kAlignment - 1;
    if (space < bytes)
        return false;
    // calloc takes large blocks fresh from the system, where zeros cost nothing until they are touched.
    std::unique_ptr<void, Free> block(std::calloc(space, 1));
    if (!block)
        return false;
    void* first = block.get();
    first_ = static_cast<std::uint8_t*>(std::align(kAlignment, bytes, first, space));
    size_ = bytes;
    block_ = std::move(block);
    return true;
}

}  // namespace korvane
