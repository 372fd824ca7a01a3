#include "engine/window/ChildRouting.h"

#include "engine/window/BaseCtrl.h"
#include "engine/window/DrawShift.h"
#include "engine/window/GroupCtrl.h"
#include "engine/window/UpdateRegion.h"

namespace korvane {

namespace {

bool TakesInput(CLQBaseCtrl& ctrl) {
    return ctrl.IsShow() && ctrl.IsWindowEnabled() && ctrl.IsRecvMsgEnabled();
}

_LQRect ScreenRect(const CLQBaseCtrl& ctrl) {
    _LQRect rect;
    int width;
    int height;
    ctrl.GetScreenXY(rect.left, rect.top);
    ctrl.GetSize(width, height);
    rect.right = rect.left + width;
    rect.bottom = rect.top + height;
    return rect;
}

}  // namespace

CLQBaseCtrl* Capture::Get() const {
    return ctrl && life.IsAlive() && TakesInput(*ctrl) ? ctrl : nullptr;
}

void Capture::Set(CLQBaseCtrl* child) {
    ctrl = child;
    life = child ? child->WatchLife() : LifeWatch();
}

bool RouteToChildren(const ChildList& children, Capture& capture, const _LQMessage& msg,
                     const LifeWatch& ownerLife) {
    // Handlers may change the list and the message is theirs to read, not to change for the next.
    const ChildList snapshot = children;
    _LQMessage copy = msg;
    const bool held = capture.ctrl != nullptr;
    if (held && (msg.code == kMsgMove || msg.code == kMsgRelease)) {
        CLQBaseCtrl* holder = capture.Get();
        if (msg.code == kMsgRelease)
            capture.Set(nullptr);
        return holder && holder->DoMessage(&copy);
    }
    for (std::size_t i = snapshot.Size(); i-- > 0;) {
        CLQBaseCtrl* child = snapshot.At(i);
        if (!child || !TakesInput(*child))
            continue;
        copy = msg;
        if (!child->DoMessage(&copy))
            continue;
        if (msg.code == kMsgPress && ownerLife.IsAlive())
            capture.Set(snapshot.At(i));
        return true;
    }
    return false;
}

void DrawChildren(const ChildList& children, CLQSurfHandle& target, CLQSurface& surface) {
    const _LQRect area = surface.GetClip();
    for (std::size_t i = 0; i < children.Size(); ++i) {
        CLQBaseCtrl* child = children.At(i);
        if (!child || !child->IsShow())
            continue;
        if (dynamic_cast<CLQGroupCtrl*>(child)) {
            // A group's children may lie outside it: it clips each of them by itself.
            child->Redraw(true);
            child->Draw(target);
            continue;
        }
        const _LQRect rect = ScreenRect(*child);
        if (!Overlap(rect, area))
            continue;
        const DrawClip clip(surface, rect);
        child->Redraw(true);
        child->Draw(target);
    }
}

}  // namespace korvane
