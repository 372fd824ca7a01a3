#include "engine/window/parts/UpdateRegion.h"

namespace korvane {

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
