#pragma once

#include <algorithm>

#include "engine/core/Types.h"

/// Arithmetic on rectangles. An empty one has no pixel inside, whatever its edges.
namespace korvane {

inline _LQRect RectOfEdges(int left, int top, int right, int bottom) {
    _LQRect rect;
    rect.left = left;
    rect.right = right;
    rect.top = top;
    rect.bottom = bottom;
    return rect;
}

inline _LQRect RectOfSize(int x, int y, int width, int height) {
    return RectOfEdges(x, y, x + width, y + height);
}

inline bool IsEmpty(const _LQRect& rect) {
    return rect.left >= rect.right || rect.top >= rect.bottom;
}

inline _LQRect Intersect(const _LQRect& a, const _LQRect& b) {
    return RectOfEdges(std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
                       std::min(a.bottom, b.bottom));
}

/// The smallest rectangle around both.
inline _LQRect Unite(const _LQRect& a, const _LQRect& b) {
    if (IsEmpty(a))
        return b;
    if (IsEmpty(b))
        return a;
    return RectOfEdges(std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
                       std::max(a.bottom, b.bottom));
}

inline bool Overlap(const _LQRect& a, const _LQRect& b) {
    return !IsEmpty(Intersect(a, b));
}

inline bool Covers(const _LQRect& outer, const _LQRect& inner) {
    return inner.left >= outer.left && inner.right <= outer.right && inner.top >= outer.top &&
           inner.bottom <= outer.bottom;
}

inline bool Contains(const _LQRect& rect, int x, int y) {
    return x >= rect.left && x < rect.right && y >= rect.top && y < rect.bottom;
}

/// Pixels inside.
inline long long Area(const _LQRect& rect) {
    if (IsEmpty(rect))
        return 0;
    return (static_cast<long long>(rect.right) - rect.left) *
           (static_cast<long long>(rect.bottom) - rect.top);
}

}  // namespace korvane
