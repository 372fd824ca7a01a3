#include "platform/posix/window/UpdateRect.h"

#include <algorithm>

namespace korvane {

void UpdateRect::Add(const RECT* rect, LONG width, LONG height) {
    RECT added{0, 0, width, height};
    if (rect) {
        added.left = std::max<LONG>(rect->left, 0);
        added.top = std::max<LONG>(rect->top, 0);
        added.right = std::min(rect->right, width);
        added.bottom = std::min(rect->bottom, height);
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
    const bool wholeRows = rect->left <= rect_.left && rect->right >= rect_.right;
    const bool wholeColumns = rect->top <= rect_.top && rect->bottom >= rect_.bottom;
    if (wholeRows && rect->top <= rect_.top)
        rect_.top = std::max(rect_.top, rect->bottom);
    else if (wholeRows && rect->bottom >= rect_.bottom)
        rect_.bottom = std::min(rect_.bottom, rect->top);
    else if (wholeColumns && rect->left <= rect_.left)
        rect_.left = std::max(rect_.left, rect->right);
    else if (wholeColumns && rect->right >= rect_.right)
        rect_.right = std::min(rect_.right, rect->left);
    if (IsEmpty())
        rect_ = RECT{};
}

}  // namespace korvane
