#include "service/ThumbnailBuffer.h"

#include "platform/SharedMemory.h"

namespace korvane {
namespace {

constexpr wchar_t kRegion[] = L"thumbnail";
/// A stored picture of 240 by 144 pixels of 32 bits, 138,272 bytes, and some room.
constexpr std::size_t kCapacity = std::size_t{160} * 1024;

}  // namespace

unsigned char* SharedThumbnailBuffer(std::size_t size) {
    if (size > kCapacity)
        return nullptr;
    return static_cast<unsigned char*>(MapSharedMemory(kRegion, kCapacity, nullptr));
}

}  // namespace korvane
