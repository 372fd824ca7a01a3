#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace korvane {

/// Rasterised ink: 8-bit coverage, row after row. Empty for a glyph without ink.
struct GlyphMask {
    /// Rows are filled up with zeros to a multiple of this many bytes.
    static constexpr int kRowUnit = 16;

    int left = 0;  ///< from the pen to the first column
    int top = 0;   ///< from the baseline down to the first row; mostly negative
    int width = 0;
    int height = 0;
    int stride = 0;  ///< bytes from row to row
    std::vector<std::uint8_t> coverage;

    bool IsEmpty() const { return coverage.empty(); }

    /// Makes all of it 0. `slack` bytes more follow each row.
    void Clear(int newWidth, int newHeight, int slack = 0) {
        width = newWidth;
        height = newHeight;
        stride = (newWidth + slack + kRowUnit - 1) / kRowUnit * kRowUnit;
        coverage.assign(static_cast<std::size_t>(stride) * static_cast<std::size_t>(height), 0);
    }

    std::uint8_t* Row(int y) { return coverage.data() + static_cast<std::ptrdiff_t>(y) * stride; }
    const std::uint8_t* Row(int y) const { return coverage.data() + static_cast<std::ptrdiff_t>(y) * stride; }
};

}  // namespace korvane
