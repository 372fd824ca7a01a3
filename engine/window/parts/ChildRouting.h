#pragma once

#include "engine/core/Life.h"
#include "engine/core/Message.h"
#include "engine/draw/Surface.h"
#include "engine/window/parts/ChildList.h"

namespace korvane {

/// The child that took the last press and gets the pointer until the release.
struct Capture {
    CLQBaseCtrl* ctrl = nullptr;
    LifeWatch life;

    /// The child, null when it ended or no longer takes input; its press is dropped then.
    CLQBaseCtrl* Get() const;
    void Set(CLQBaseCtrl* child);
};

/// Hands a message to the children of an owner: a press to each from the top until one consumes it, which
/// then holds the pointer until the release; moves and releases to the holder, or without one to each from
/// the top; all other messages to each from the top. True when one consumed it. A handler may destroy any
/// child, and the owner.
bool RouteToChildren(const ChildList& children, Capture& capture, const _LQMessage& msg,
                     const LifeWatch& ownerLife);

/// Ends the presses that a control and everything inside it hold, without a release.
void DropPress(CLQBaseCtrl& ctrl);
void DropPresses(const ChildList& children);

/// Draws the shown children that lie inside the clip, each clipped to its own rectangle, in their order. A
/// child's Draw may destroy any child, and the owner.
void DrawChildren(const ChildList& children, CLQSurfHandle& target, CLQSurface& surface,
                  const LifeWatch& ownerLife);

}  // namespace korvane
