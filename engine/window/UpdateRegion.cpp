#include "engine/window/UpdateRegion.h"

#include <algorithm>

namespace korvane {

bool IsEmpty(const _LQRect& rect) {
    return rect.left >= rect.right || rect.top >= rect.bottom;
}

_LQRect Intersect(const _LQRect& a, const _LQRect& b) {
    _LQRect rect;
    rect.left = std::max(a.left, b.left);
    rect.right = std::min(a.right, b.right);
    rect.top = std::max(a.top, b.top);
    rect.bottom = std::min(a.bottom, b.bottom);
    return rect;
}

_LQRect Unite(const _LQRect& a, const _LQRect& b) {
    if (IsEmpty(a))
        return b;
    if (IsEmpty(b))
        return a;
    _LQRect rect;
    rect.left = std::min(a.left, b.left);
    rect.right = std::max(a.right, b.right);
    rect.top = std::min(a.top, b.top);
    rect.bottom = std::max(a.bottom, b.bottom);
    return rect;
}

bool Overlap(const _LQRect& a, const _LQRect& b) {
    return !IsEmpty(Intersect(a, b));
}

bool Covers(const _LQRect& outer, const _LQRect& inner) {
    return inner.left >= outer.left && inner.right <= outer.right && inner.top >= outer.top &&
           inner.bottom <= outer.bottom;
}

long long Area(const _LQRect& rect) {
    if (IsEmpty(rect))
        return 0;
    return (static_cast<long long>(rect.right) - rect.left) *
           (static_cast<long long>(rect.bottom) - rect.top);
}

void UpdateRegion::Add(const _LQRect& rect) {
    if (korvane::IsEmpty(rect))
        return;
    _LQRect added = rect;
    for (std::size_t i = 0; i < count_;) {
        if (Covers(rects_[i], added))
            return;
        const _LQRect both = Unite(rects_[i], added);
        if (Area(both) <= Area(rects_[i]) + Area(added)) {
            added = both;
            Remove(i);
            i = 0;
        } else {
            ++i;
        }
    }
    rects_[count_++] = added;
    if (count_ > kCapacity)
        MergeCheapest();
}

void UpdateRegion::MergeCheapest() {
    std::size_t first = 0;
    std::size_t second = 1;
    long long least = -1;
    for (std::size_t i = 0; i < count_; ++i) {
        for (std::size_t j = i + 1; j < count_; ++j) {
            const long long growth = Area(Unite(rects_[i], rects_[j])) - Area(rects_[i]) - Area(rects_[j]);
            if (least < 0 || growth < least) {
                least = growth;
                first = i;
                second = j;
            }
        }
    }
    const _LQRect both = Unite(rects_[first], rects_[second]);
    Remove(second);
    Remove(first);
    Add(both);
}

void UpdateRegion::Remove(std::size_t index) {
    for (std::size_t i = index + 1; i < count_; ++i)
        rects_[i - 1] = rects_[i];
    --count_;
}

}  // namespace korvane
