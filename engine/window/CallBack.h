#pragma once

#include "engine/window/Wnd.h"

class CLQBaseCtrl;

namespace korvane {

/// The second argument of an event, if it has one.
struct EventData {
    enum class Kind { None, Pointer, Index };
    Kind kind = Kind::None;
    void* pointer = nullptr;
    int index = 0;
};

}  // namespace korvane

/// One entry of a control's callback table.
struct _LQCallBack {
    CLQWnd* target = nullptr;
    void (CLQWnd::*handler)() = nullptr;
    /// Calls the handler by the type that it was registered with.
    void (*invoke)(const _LQCallBack& record, CLQBaseCtrl* sender, const korvane::EventData& data) = nullptr;
    korvane::LifeWatch targetLife;
};
