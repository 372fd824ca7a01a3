#pragma once

#include "engine/core/Message.h"
#include "engine/window/BaseCtrl.h"

/// Messages handed to a control directly, without a window.
namespace korvane::test {

inline bool Hand(CLQBaseCtrl& ctrl, unsigned int code, int x, int y) {
    _LQMessage msg;
    msg.code = code;
    msg.x = x;
    msg.y = y;
    return ctrl.DoMessage(&msg);
}

inline bool Press(CLQBaseCtrl& ctrl, int x, int y) {
    return Hand(ctrl, kMsgPress, x, y);
}

inline bool Drag(CLQBaseCtrl& ctrl, int x, int y) {
    return Hand(ctrl, kMsgMove, x, y);
}

inline bool Release(CLQBaseCtrl& ctrl, int x, int y) {
    return Hand(ctrl, kMsgRelease, x, y);
}

}  // namespace korvane::test
