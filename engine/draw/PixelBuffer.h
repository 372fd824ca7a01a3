#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>

namespace korvane {

/// Memory for pixels. It starts on a cache line, so that whole vectors of a row do not straddle two.
class PixelBuffer {
  public:
    /// Replaces the contents by zeroed memory. False, with the contents as they were, when there is not
    /// enough.
    bool Allocate(std::size_t bytes);

    std::uint8_t* Data() { return first_; }
    const std::uint8_t* Data() const { return first_; }
    std::size_t Size() const { return size_; }

  private:
    struct Free {
        void operator()(void* block) const { std::free(block); }
    };

    std::unique_ptr<void, Free> block_;
    std::uint8_t* first_ = nullptr;
    std::size_t size_ = 0;
};

}  // namespace korvane
