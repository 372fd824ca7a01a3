#pragma once

namespace korvane {

/// Width and height of the em square in whole pixels.
struct PixelSize {
    int width = 0;
    int height = 0;

    friend bool operator==(PixelSize left, PixelSize right) {
        return left.width == right.width && left.height == right.height;
    }
    friend bool operator!=(PixelSize left, PixelSize right) { return !(left == right); }
};

/// Sizes of text lie in 1..kMaxFontSize, both ways.
constexpr int kMaxFontSize = 512;

}  // namespace korvane
