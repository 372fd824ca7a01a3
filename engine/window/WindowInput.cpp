#include <cstdlib>
#include <limits>
#include <vector>

#include "engine/core/Rect.h"
#include "engine/system/System.h"
#include "engine/window/GroupCtrl.h"
#include "engine/window/Window.h"
#include "platform/coredll.h"

namespace {

/// Controls that keys may reach, in drawing order.
void CollectFocusable(CLQBaseCtrl* ctrl, std::vector<CLQBaseCtrl*>& found) {
    if (!ctrl || !ctrl->IsOwnerShow() || !ctrl->IsWindowEnabled() || !ctrl->IsRecvMsgEnabled())
        return;
    if (ctrl->IsFocusEnabled())
        found.push_back(ctrl);
    if (auto* group = dynamic_cast<CLQGroupCtrl*>(ctrl)) {
        for (int i = 0; i < group->GetChildCount(); ++i)
            CollectFocusable(group->GetChild(i), found);
    }
}

struct Point {
    long long x;
    long long y;
};

Point Center(CLQBaseCtrl& ctrl) {
    const _LQRect rect = ctrl.GetScreenRect();
    return {rect.left + (rect.right - rect.left) / 2, rect.top + (rect.bottom - rect.top) / 2};
}

_LQMessage AtCenter(CLQBaseCtrl& ctrl, unsigned int code) {
    const Point center = Center(ctrl);
    _LQMessage msg;
    msg.code = code;
    msg.x = static_cast<int>(center.x);
    msg.y = static_cast<int>(center.y);
    return msg;
}

/// How far `to` lies from `from` in the key's direction; negative when it does not lie there. A step aside
/// counts double, so that rows and columns keep together.
long long Distance(const Point& from, const Point& to, int key) {
    const long long dx = to.x - from.x;
    const long long dy = to.y - from.y;
    switch (key) {
        case VK_LEFT:
            return dx < 0 ? -dx + 2 * std::llabs(dy) : -1;
        case VK_RIGHT:
            return dx > 0 ? dx + 2 * std::llabs(dy) : -1;
        case VK_UP:
            return dy < 0 ? -dy + 2 * std::llabs(dx) : -1;
        case VK_DOWN:
            return dy > 0 ? dy + 2 * std::llabs(dx) : -1;
        default:
            return -1;
    }
}

bool IsDirection(int key) {
    return key == VK_LEFT || key == VK_RIGHT || key == VK_UP || key == VK_DOWN;
}

}  // namespace

bool CLQWindow::DoMessage(_LQMessage* msg) {
    if (!msg)
        return false;
    switch (msg->code) {
        case korvane::kMsgPress:
        case korvane::kMsgMove:
        case korvane::kMsgRelease:
            if (m_bRecvMsg)
                return RoutePointer(*msg);
            if (msg->code == korvane::kMsgRelease)
                DropInput();
            return false;
        case korvane::kMsgKeyDown:
        case korvane::kMsgKeyUp:
            return m_bEnabled && m_bRecvMsg && RouteKey(*msg);
        default:
            AdoptOrphans();
            return korvane::RouteToChildren(m_children, m_captured, *msg, WatchLife());
    }
}

bool CLQWindow::RoutePointer(const _LQMessage& msg) {
    AdoptOrphans();
    if (msg.code != korvane::kMsgPress) {
        if (m_bHoldsPress) {
            if (msg.code == korvane::kMsgRelease)
                m_bHoldsPress = false;
            return true;
        }
        if (CLQBaseCtrl* receiver = m_recvMsg.Get()) {
            const korvane::Capture other = m_captured;
            _LQMessage copy = msg;
            if (msg.code == korvane::kMsgMove)
                return receiver->DoMessage(&copy);
            m_recvMsg = korvane::Capture();
            m_captured = korvane::Capture();
            const bool consumed = receiver->DoMessage(&copy);
            if (CLQBaseCtrl* ctrl = other.Get())
                korvane::DropPress(*ctrl);
            return consumed;
        }
        if (!m_bEnabled && msg.code == korvane::kMsgRelease)
            DropInput();
        return m_bEnabled && korvane::RouteToChildren(m_children, m_captured, msg, WatchLife());
    }

    if (CLQBaseCtrl* holder = m_captured.Get())
        korvane::DropPress(*holder);
    m_captured = korvane::Capture();
    m_bHoldsPress = false;
    if (!korvane::Contains(ScreenRect(), msg.x, msg.y))
        return false;
    if (m_bEnabled) {
        const korvane::LifeWatch self = WatchLife();
        if (CLQBaseCtrl* receiver = m_recvMsg.Get()) {
            _LQMessage copy = msg;
            receiver->DoMessage(&copy);
            // Also when it does not want the press: what follows is its alone.
            return true;
        }
        if (korvane::RouteToChildren(m_children, m_captured, msg, self) || !self.IsAlive())
            return true;
    }
    // What a background hides is not to be touched through it.
    m_bHoldsPress = m_background.IsVisible();
    return m_bHoldsPress;
}

bool CLQWindow::RouteKey(const _LQMessage& msg) {
    AdoptOrphans();
    const korvane::LifeWatch self = WatchLife();
    if (CLQBaseCtrl* focus = GetFocusCtrl()) {
        _LQMessage copy = msg;
        if (focus->DoMessage(&copy) || !self.IsAlive())
            return true;
    }
    if (msg.param == VK_RETURN || msg.param == VK_SPACE)
        return msg.code == korvane::kMsgKeyDown ? PressFocused() : ReleasePressed();
    if (msg.code == korvane::kMsgKeyDown && (msg.param == VK_TAB || IsDirection(msg.param)))
        return MoveFocus(msg.param);
    return false;
}

bool CLQWindow::PressFocused() {
    CLQBaseCtrl* focus = GetFocusCtrl();
    if (!focus || !IsCursorState() || !focus->IsOwnerShow() || !focus->IsWindowEnabled() ||
        !focus->IsRecvMsgEnabled())
        return false;
    // Holding the key down repeats it; a press that is held already is not begun again.
    if (m_keyPressed.Get())
        return true;
    m_keyPressed.Set(focus);
    _LQMessage msg = AtCenter(*focus, korvane::kMsgPress);
    return focus->DoMessage(&msg);
}

bool CLQWindow::ReleasePressed() {
    CLQBaseCtrl* pressed = m_keyPressed.Get();
    m_keyPressed = korvane::Capture();
    if (!pressed)
        return false;
    _LQMessage msg = AtCenter(*pressed, korvane::kMsgRelease);
    return pressed->DoMessage(&msg);
}

bool CLQWindow::MoveFocus(int key) {
    std::vector<CLQBaseCtrl*> found;
    for (std::size_t i = 0; i < m_children.Size(); ++i)
        CollectFocusable(m_children.At(i), found);
    if (found.empty())
        return false;

    CLQBaseCtrl* focus = GetFocusCtrl();
    std::size_t current = found.size();
    for (std::size_t i = 0; i < found.size(); ++i) {
        if (found[i] == focus)
            current = i;
    }
    // The first key shows where the focus is; the next ones move it.
    if (!IsCursorState() || current == found.size()) {
        if (current == found.size())
            SetFocusCtrl(found.front());
        korvane::SetCursorState(true);
        return true;
    }
    if (key == VK_TAB) {
        SetFocusCtrl(found[(current + 1) % found.size()]);
        return true;
    }
    const Point from = Center(*focus);
    CLQBaseCtrl* nearest = nullptr;
    long long least = std::numeric_limits<long long>::max();
    for (CLQBaseCtrl* ctrl : found) {
        const long long distance = Distance(from, Center(*ctrl), key);
        if (distance >= 0 && distance < least) {
            least = distance;
            nearest = ctrl;
        }
    }
    if (nearest)
        SetFocusCtrl(nearest);
    return true;
}

void CLQWindow::SetFocusCtrl(CLQBaseCtrl* ctrl) {
    CLQBaseCtrl* before = GetFocusCtrl();
    if (ctrl == before)
        return;
    const korvane::LifeWatch self = WatchLife();
    const korvane::LifeWatch next = ctrl ? ctrl->WatchLife() : korvane::LifeWatch();
    m_pFocusCtrl = ctrl;
    m_focusLife = next;
    if (before)
        before->SetFocus(false);
    if (ctrl && self.IsAlive() && next.IsAlive() && GetFocusCtrl() == ctrl)
        ctrl->SetFocus(true);
}

CLQBaseCtrl* CLQWindow::GetFocusCtrl() const {
    return m_focusLife.IsAlive() ? m_pFocusCtrl : nullptr;
}

void CLQWindow::SetRecvMsgCtrl(CLQBaseCtrl* ctrl) {
    m_recvMsg.Set(ctrl);
}
