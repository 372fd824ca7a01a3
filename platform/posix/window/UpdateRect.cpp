#include "platform/posix/window/UpdateRect.h"

#include <algorithm>

namespace korvane {
namespace {

RECT Ordered(const RECT& rect) {
    return {std::min(rect.left, rect.right), std::min(rect.top, rect.bottom), std::max(rect.left, rect.right),
            std::max(rect.top, rect.bottom)};
}

}  // namespace

void UpdateRect::Add(const RECT* rect, LONG width, LONG height) {
    RECT added{0, 0, width, height};
    if (rect) {
        const RECT asked = Ordered(*rect);
        added.left = std::max<LONG>(asked.left, 0);
        added.top = std::max<LONG>(asked.top, 0);
        added.right = std::min(asked.right, width);
        added.bottom = std::min(asked.bottom, height);
    }
    if (added.left >= added.right || added.top >= added.bottom)
        return;
    if (IsEmpty()) {
        rect_ = added;
        return;
    }
    rect_.left = std::min(rect_.left, added.left);
    rect_.top = std::min(rect_.top, added.top);
    rect_.right = std::max(rect_.right, added.right);
    rect_.bottom = std::max(rect_.bottom, added.bottom);
}

void UpdateRect::Remove(const RECT* rect) {
    if (!rect) {
        rect_ = RECT{};
        return;
    }
    const RECT removed = Ordered(*rect);
    const bool wholeRows = removed.left <= rect_.left && removed.right >= rect_.right;
    const bool wholeColumns = removed.top <= rect_.top && removed.bottom >= rect_.bottom;
    if (wholeRows && removed.top <= rect_.top)
        rect_.top = std::max(rect_.top, removed.bottom);
    else if (wholeRows && removed.bottom >= rect_.bottom)
        rect_.bottom = std::min(rect_.bottom, removed.top);
    else if (wholeColumns && removed.left <= rect_.left)
        rect_.left = std::max(rect_.left, removed.right);
    else if (wholeColumns && removed.right >= rect_.right)
        rect_.right = std::min(rect_.right, removed.left);
    if (IsEmpty())
        rect_ = RECT{};
}

}  // namespace korvane
