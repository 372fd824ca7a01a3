#include "engine/window/parts/ChildRouting.h"

#include "engine/core/Rect.h"
#include "engine/window/BaseCtrl.h"
#include "engine/window/GroupCtrl.h"
#include "engine/window/parts/DrawShift.h"

namespace korvane {

namespace {

bool TakesInput(CLQBaseCtrl& ctrl) {
    return ctrl.IsShow() && ctrl.IsWindowEnabled() && ctrl.IsRecvMsgEnabled();
}

}  // namespace

CLQBaseCtrl* Capture::Get() const {
    if (!ctrl || !life.IsAlive())
        return nullptr;
    if (TakesInput(*ctrl))
        return ctrl;
    DropPress(*ctrl);
    return nullptr;
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
        if (!child || !ownerLife.IsAlive() || !children.Contains(child) || !TakesInput(*child))
            continue;
        copy = msg;
        if (!child->DoMessage(&copy))
            continue;
        if (msg.code == kMsgPress && ownerLife.IsAlive() && children.Contains(child))
            capture.Set(child);
        return true;
    }
    return false;
}

void DropPress(CLQBaseCtrl& ctrl) {
    ctrl.DropPress();
    if (auto* group = dynamic_cast<CLQGroupCtrl*>(&ctrl)) {
        for (int i = 0; i < group->GetChildCount(); ++i) {
            if (CLQBaseCtrl* child = group->GetChild(i))
                DropPress(*child);
        }
    }
}

void DropPresses(const ChildList& children) {
    for (std::size_t i = 0; i < children.Size(); ++i) {
        if (CLQBaseCtrl* child = children.At(i))
            DropPress(*child);
    }
}

void DrawChildren(const ChildList& children, CLQSurfHandle& target, CLQSurface& surface,
                  const LifeWatch& ownerLife) {
    const _LQRect area = surface.GetClip();
    for (std::size_t i = 0; ownerLife.IsAlive() && i < children.Size(); ++i) {
        CLQBaseCtrl* child = children.At(i);
        if (!child || !child->IsShow())
            continue;
        if (dynamic_cast<CLQGroupCtrl*>(child)) {
            // A group's children may lie outside it: it clips each of them by itself.
            child->Redraw(true);
            child->Draw(target);
            continue;
        }
        const _LQRect rect = child->GetScreenRect();
        if (!Overlap(rect, area))
            continue;
        const DrawClip clip(surface, rect);
        child->Redraw(true);
        child->Draw(target);
    }
}

}  // namespace korvane
