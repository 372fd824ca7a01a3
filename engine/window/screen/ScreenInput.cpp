#include <vector>

#include "engine/system/System.h"
#include "engine/window/Window.h"
#include "engine/window/screen/ScreenState.h"

namespace korvane {

namespace {

/// The windows from the top to the bottom, such that a handler may destroy any of them.
class WindowSnapshot {
  public:
    WindowSnapshot() {
        CLQScreen* screen = CLQScreen::GetInstance();
        for (int i = screen->GetWindowCount(); i-- > 0;) {
            CLQWindow* window = screen->GetWindow(i);
            entries_.push_back({window, window->WatchLife()});
        }
    }

    /// Calls `handle` with each window that still exists until it returns true; null if it never does.
    template <class Handler>
    CLQWindow* FindFirst(Handler handle) {
        for (Entry& entry : entries_) {
            if (entry.life.IsAlive() && handle(*entry.window))
                return entry.window;
        }
        return nullptr;
    }

  private:
    struct Entry {
        CLQWindow* window;
        LifeWatch life;
    };
    std::vector<Entry> entries_;
};

bool SendPointer(const _LQMessage& msg, CLQWindow*& pressed, LifeWatch& pressedLife) {
    _LQMessage copy = msg;
    if (msg.code == kMsgPress) {
        SetCursorState(false);
        LifeWatch life;
        CLQWindow* taker = WindowSnapshot().FindFirst([&](CLQWindow& window) {
            if (!window.IsShow())
                return false;
            life = window.WatchLife();
            copy = msg;
            return window.DoMessage(&copy);
        });
        pressed = taker;
        pressedLife = life;
        return true;
    }
    CLQWindow* holder = pressed && pressedLife.IsAlive() && pressed->IsShow() ? pressed : nullptr;
    if (msg.code == kMsgRelease)
        pressed = nullptr;
    if (holder)
        holder->DoMessage(&copy);
    return true;
}

bool SendKey(const _LQMessage& msg) {
    return WindowSnapshot().FindFirst([&msg](CLQWindow& window) {
        _LQMessage copy = msg;
        return window.IsShow() && window.DoMessage(&copy);
    }) != nullptr;
}

/// To the window that holds the control, or, if none does, to each until one takes it.
bool SendCommand(const _LQMessage& msg) {
    bool delivered = false;
    WindowSnapshot windows;
    CLQWindow* owner = windows.FindFirst([&msg](CLQWindow& window) { return window.HoldsCtrl(msg.source); });
    if (owner) {
        _LQMessage copy = msg;
        delivered = owner->DoCommand(&copy);
    }
    return delivered || windows.FindFirst([&msg, owner](CLQWindow& window) {
        _LQMessage copy = msg;
        return &window != owner && window.DoCommand(&copy);
    }) != nullptr;
}

void SendToAll(const _LQMessage& msg) {
    WindowSnapshot().FindFirst([&msg](CLQWindow& window) {
        _LQMessage copy = msg;
        window.DoMessage(&copy);
        return false;
    });
}

}  // namespace

bool RouteScreenMessage(UINT message, WPARAM wParam, LPARAM lParam, CLQWindow*& pressed,
                        LifeWatch& pressedLife) {
    _LQMessage msg;
    msg.code = message;
    switch (message) {
        case kMsgPress:
        case kMsgMove:
        case kMsgRelease:
            // Signed 16-bit halves, as the system packs pointer positions.
            msg.x = static_cast<short>(lParam & 0xFFFF);
            msg.y = static_cast<short>((lParam >> 16) & 0xFFFF);
            return SendPointer(msg, pressed, pressedLife);
        case kMsgKeyDown:
        case kMsgKeyUp:
            msg.param = static_cast<int>(wParam);
            return SendKey(msg);
        case kMsgCommand:
            msg.param = static_cast<int>(lParam);
            msg.source = reinterpret_cast<void*>(wParam);
            SendCommand(msg);
            return true;
        case kMsgSysInfoChanged:
            msg.param = static_cast<int>(wParam);
            SendToAll(msg);
            return true;
        default:
            return false;
    }
}

}  // namespace korvane
