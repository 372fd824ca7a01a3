#pragma once

#include <cstdint>

#include "controls/parts/Saturated.h"

/// Where the file view puts its children, and which parts of it a touch falls into.
namespace korvane::file_view {

/// Pixels.
struct Box {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
};

constexpr int kIconWidth = 96;
constexpr int kIconHeight = 129;
constexpr int kArrowWidth = 24;
constexpr int kArrowHeight = 21;
/// Rows of the window, wherever the view is.
constexpr int kTopLabelY = 110;
constexpr int kBottomLabelY = 409;

/// The left edge of a child that is centred with 5 pixels left and right of it.
inline int CentredX(const Box& view, int width) {
    constexpr int kMargin = 5;
    constexpr int kMargins = 2 * kMargin;
    return Saturated(std::int64_t{view.x} + (std::int64_t{view.width} - width - kMargins) / 2 + kMargin);
}

inline Box IconBox(const Box& view) {
    const int y = Saturated(std::int64_t{view.y} + (std::int64_t{view.height} - kIconHeight) / 2 - 30);
    return {CentredX(view, kIconWidth), y, kIconWidth, kIconHeight};
}

inline Box LabelBox(const Box& view, int y, int height) {
    return {Saturated(std::int64_t{view.x} + 5), y, Saturated(std::int64_t{view.width} - 10), height};
}

inline Box ArrowBox(const Box& view, int below) {
    return {CentredX(view, kArrowWidth), Saturated(std::int64_t{view.y} + below), kArrowWidth, kArrowHeight};
}

inline Box UpArrowBox(const Box& view) {
    return ArrowBox(view, 23);
}

inline Box DownArrowBox(const Box& view) {
    return ArrowBox(view, 376);
}

/// Where the view and its children are on the screen.
struct Places {
    Box view;
    Box icon;
    Box up;
    Box down;
    Box topLabel;
    Box bottomLabel;
};

constexpr bool LiesBetween(int low, int number, int high) {
    return low < number && number < high;
}

/// From the view's left edge on, but as wide as the icon.
constexpr bool IsInOpenBand(const Places& at, int x, int y) {
    return LiesBetween(at.view.x, x, at.view.x + at.icon.width) &&
           LiesBetween(at.icon.y, y, at.icon.y + at.icon.height);
}

constexpr bool IsInIconColumn(const Places& at, int x) {
    return LiesBetween(at.icon.x, x, at.icon.x + at.icon.width);
}

constexpr bool IsInUpperBand(const Places& at, int x, int y) {
    return IsInIconColumn(at, x) && LiesBetween(at.view.y, y, at.icon.y + at.icon.height);
}

/// Its lower limit is the icon's height counted from the view's x, which is meant.
constexpr bool IsInLowerBand(const Places& at, int x, int y) {
    return IsInIconColumn(at, x) && LiesBetween(at.icon.y, y, at.view.x + at.icon.height);
}

constexpr bool IsOnUpArrow(const Places& at, int x, int y) {
    return LiesBetween(at.up.x, x, at.up.x + at.up.width) &&
           LiesBetween(at.up.y, y, at.up.y + at.up.height + at.topLabel.height);
}

constexpr bool IsOnDownArrow(const Places& at, int x, int y) {
    return LiesBetween(at.down.x, x, at.down.x + at.down.width) &&
           LiesBetween(at.bottomLabel.y, y, at.down.y + at.down.height + at.bottomLabel.height);
}

/// A swipe is longer than this, and one to the right strays less than this up or down.
constexpr std::int64_t kSwipeLength = 40;

constexpr bool IsSwipeRight(std::int64_t right, std::int64_t down) {
    return right > kSwipeLength && down < kSwipeLength && -down < kSwipeLength;
}

}  // namespace korvane::file_view
