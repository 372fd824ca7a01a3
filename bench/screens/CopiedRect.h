#pragma once

#include <cstdint>
#include <cstring>
#include <vector>

#include "engine/core/Types.h"

namespace korvane::bench {

/// A peer of painting: copies a rectangle of one picture of 800 by 480 into another, row by row.
class CopiedRect {
  public:
    explicit CopiedRect(const _LQRect& rect) : rect_(rect), from_(kPixels, 0xFF3C4650), to_(kPixels) {}

    void operator()() {
        const auto bytes = static_cast<std::size_t>(rect_.right - rect_.left) * sizeof(std::uint32_t);
        for (int y = rect_.top; y < rect_.bottom; ++y) {
            const auto at = static_cast<std::size_t>(y * kWidth + rect_.left);
            std::memcpy(to_.data() + at, from_.data() + at, bytes);
        }
    }

  private:
    static constexpr int kWidth = 800;
    static constexpr std::size_t kPixels = 800 * 480;

    _LQRect rect_;
    std::vector<std::uint32_t> from_;
    std::vector<std::uint32_t> to_;
};

}  // namespace korvane::bench
