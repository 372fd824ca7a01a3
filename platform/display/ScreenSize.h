#pragma once

#include <algorithm>

namespace korvane {

/// Pixels of a screen each way, at most.
constexpr int kLargestScreen = 16384;
/// Why a display refuses to open.
constexpr char kNoScreenSize[] = "the size of the screen must be 1 to 16384 pixels each way";

constexpr bool IsScreenSize(int width, int height) {
    return width >= 1 && height >= 1 && width <= kLargestScreen && height <= kLargestScreen;
}

/// Cuts the rectangle to a screen of that size. False when nothing is left of it.
constexpr bool CutToScreen(int width, int height, int& left, int& top, int& right, int& bottom) {
    left = std::max(left, 0);
    top = std::max(top, 0);
    right = std::min(right, width);
    bottom = std::min(bottom, height);
    return left < right && top < bottom;
}

}  // namespace korvane
