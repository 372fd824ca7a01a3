#pragma once

#include <cstdint>
#include <vector>

namespace korvane {

/// A rasterised glyph: 8-bit coverage, row after row without gaps. Empty for a glyph without ink.
struct GlyphMask {
    int left = 0;  ///< from the pen to the first column
    int top = 0;   ///< from the baseline down to the first row; mostly negative
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> coverage;
};

}  // namespace korvane
