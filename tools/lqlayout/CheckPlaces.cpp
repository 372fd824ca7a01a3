#include "engine/window/BaseCtrl.h"

#include "tools/lqlayout/Checks.h"

namespace korvane::tools {
namespace {

bool IsEmpty(const _LQRect& rect) {
    return rect.left >= rect.right || rect.top >= rect.bottom;
}

bool DoMeet(const _LQRect& one, const _LQRect& other) {
    return one.left < other.right && other.left < one.right && one.top < other.bottom &&
           other.top < one.bottom;
}

bool IsInside(const _LQRect& inner, const _LQRect& outer) {
    return inner.left >= outer.left && inner.right <= outer.right && inner.top >= outer.top &&
           inner.bottom <= outer.bottom;
}

bool TakesTouches(const Layout& layout, const LayoutCtrl& ctrl) {
    return (ctrl.kind == kKindButton || ctrl.kind == kKindSlider) && ctrl.isSeen && !IsEmpty(ctrl.place) &&
           layout.Number(ctrl, L"receives", 1) != 0;
}

void CheckOnScreen(const Layout& layout, const LayoutCtrl& ctrl, const _LQRect& screen, Findings& findings) {
    const std::string who = layout.Describe(ctrl);
    if (IsEmpty(ctrl.place))
        findings.AddWarning(layout.LineOf(ctrl), who + " has no size, so it is not seen");
    else if (!DoMeet(ctrl.place, screen))
        findings.AddWarning(layout.LineOf(ctrl), who + " lies outside the screen");
    else if (!IsInside(ctrl.place, screen))
        findings.AddWarning(layout.LineOf(ctrl), who + " reaches beyond the screen");
}

}  // namespace

void CheckPlaces(const Layout& layout, const ScreenSize& screen, Findings& findings) {
    _LQRect visible;
    visible.right = screen.width;
    visible.bottom = screen.height;
    std::vector<const LayoutCtrl*> touched;
    for (const LayoutCtrl& ctrl : layout.Ctrls()) {
        // What a group shows are its children, which it does not cut.
        if (ctrl.isSeen && ctrl.kind != kKindGroup)
            CheckOnScreen(layout, ctrl, visible, findings);
        if (!TakesTouches(layout, ctrl))
            continue;
        for (const LayoutCtrl* below : touched) {
            if (DoMeet(ctrl.place, below->place))
                findings.AddWarning(layout.LineOf(ctrl), layout.Describe(ctrl) + " overlaps the " +
                                                             layout.Describe(*below) +
                                                             " and takes its touches");
        }
        touched.push_back(&ctrl);
    }
}

}  // namespace korvane::tools
