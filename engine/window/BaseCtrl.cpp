#include "engine/window/BaseCtrl.h"

#include <algorithm>

#include "engine/core/Rect.h"
#include "engine/window/GroupCtrl.h"
#include "engine/window/Window.h"
#include "engine/window/parts/DrawShift.h"

namespace {

/// Handlers that were registered without their type take the sender and, for events with data, the data.
void InvokeUntyped(const _LQCallBack& record, CLQBaseCtrl* sender, const korvane::EventData& data) {
    CLQWnd* target = record.target;
    switch (data.kind) {
        case korvane::EventData::Kind::None:
            (target->*korvane::HandlerCast<void (CLQWnd::*)(void*)>(record.handler))(sender);
            break;
        case korvane::EventData::Kind::Pointer:
            (target->*korvane::HandlerCast<void (CLQWnd::*)(void*, void*)>(record.handler))(sender,
                                                                                            data.pointer);
            break;
        case korvane::EventData::Kind::Index:
            (target->*korvane::HandlerCast<void (CLQWnd::*)(void*, int)>(record.handler))(sender, data.index);
            break;
    }
}

}  // namespace

CLQBaseCtrl::CLQBaseCtrl() = default;

CLQBaseCtrl::CLQBaseCtrl(const CLQBaseCtrl& other)
    : CLQWnd(other),
      m_mapCallBack(other.m_mapCallBack),
      m_nLangID(other.m_nLangID),
      m_strName(other.m_strName),
      m_bOwnerUpdate(other.m_bOwnerUpdate) {}

CLQBaseCtrl& CLQBaseCtrl::operator=(const CLQBaseCtrl& other) {
    if (this == &other)
        return *this;
    InvalidateArea();
    CLQWnd::operator=(other);
    m_mapCallBack = other.m_mapCallBack;
    m_nLangID = other.m_nLangID;
    m_strName = other.m_strName;
    m_bOwnerUpdate = other.m_bOwnerUpdate;
    m_bNeedRedraw = true;
    InvalidateArea();
    return *this;
}

CLQBaseCtrl::~CLQBaseCtrl() {
    if (m_pOwnerWnd) {
        InvalidateArea();
        m_pOwnerWnd->ForgetCtrl(this);
    }
}

bool CLQBaseCtrl::Create(int x, int y, int width, int height) {
    InvalidateArea();
    const bool placed = CLQWnd::Create(x, y, width, height);
    if (placed)
        Invalidate();
    return placed;
}

void CLQBaseCtrl::SetSize(int width, int height) {
    InvalidateArea();
    CLQWnd::SetSize(width, height);
    Invalidate();
}

void CLQBaseCtrl::Move(int dx, int dy) {
    CLQWnd::Move(dx, dy);
}

void CLQBaseCtrl::MoveTo(int x, int y) {
    InvalidateArea();
    CLQWnd::MoveTo(x, y);
    Invalidate();
}

void CLQBaseCtrl::SetShow(bool show) {
    if (show == m_bShow)
        return;
    InvalidateArea();
    CLQWnd::SetShow(show);
    if (show)
        Invalidate();
    else
        DropPress();
}

void CLQBaseCtrl::SetFocus(bool focus) {
    if (focus == m_bFocus)
        return;
    CLQWnd::SetFocus(focus);
    const korvane::LifeWatch self = WatchLife();
    if (focus)
        OnFocus();
    else
        OnLostFocus();
    if (self.IsAlive())
        Invalidate();
}

void CLQBaseCtrl::EnableWindow(bool enable) {
    if (enable == m_bEnabled)
        return;
    CLQWnd::EnableWindow(enable);
    if (!enable)
        DropPress();
    Invalidate();
}

bool CLQBaseCtrl::DoMessage(_LQMessage*) {
    return false;
}

void CLQBaseCtrl::Draw(CLQSurfHandle&) {
    if (m_pOwnerWnd)
        Redraw(false);
}

void CLQBaseCtrl::ChangeLanguage() {}

void CLQBaseCtrl::SetFatherWnd(CLQWindow* window) {
    if (window == m_pOwnerWnd)
        return;
    if (m_bFocus) {
        const korvane::LifeWatch self = WatchLife();
        const CLQWindow* const before = m_pOwnerWnd;
        SetFocus(false);
        // Its handler may have ended it, or put it somewhere else.
        if (!self.IsAlive() || m_pOwnerWnd != before)
            return;
    }
    if (m_pOwnerWnd) {
        InvalidateArea();
        m_pOwnerWnd->ForgetCtrl(this);
    }
    m_pOwnerWnd = window;
    m_nPress = 0;
    if (window)
        window->m_placed.push_back(this);
    m_bNeedRedraw = true;
    InvalidateArea();
}

void CLQBaseCtrl::Redraw(bool needed) {
    m_bNeedRedraw = needed;
}

bool CLQBaseCtrl::CheckPoint(int x, int y) {
    return korvane::Contains(GetScreenRect(), x, y);
}

void CLQBaseCtrl::Invalidate() {
    m_bNeedRedraw = true;
    InvalidateArea();
}

void CLQBaseCtrl::InvalidatePart(const _LQRect& part) {
    m_bNeedRedraw = true;
    RequestRepaint(korvane::Intersect(part, GetScreenRect()));
}

void CLQBaseCtrl::InvalidateArea() {
    RequestRepaint(GetScreenRect());
}

void CLQBaseCtrl::RequestRepaint(const _LQRect& rect) {
    if (m_pOwnerWnd && m_bOwnerUpdate && IsOwnerShow())
        m_pOwnerWnd->InvalidateRect(rect);
}

void CLQBaseCtrl::LeaveOwner() {
    if (m_pOwnerGroup)
        m_pOwnerGroup->DelChild(this, false);
    else if (m_pOwnerWnd)
        m_pOwnerWnd->DelChild(this, false);
}

void CLQBaseCtrl::DrawBaseCtrl(CLQSurfHandle& target, int x, int y) {
    CLQSurface* surface = target.GetSurface();
    if (!surface)
        return;
    int left;
    int top;
    GetScreenXY(left, top);
    const int toX = std::clamp(x, -korvane::kMaxPosition, korvane::kMaxPosition);
    const int toY = std::clamp(y, -korvane::kMaxPosition, korvane::kMaxPosition);
    const korvane::DrawShift shift(*surface, toX - left, toY - top);
    Redraw(true);
    Draw(target);
}

void CLQBaseCtrl::OnFocus() {}

void CLQBaseCtrl::OnLostFocus() {}

bool CLQBaseCtrl::IsCanBeep() {
    return m_bEnabled && m_bRecvMsg;
}

void CLQBaseCtrl::EnableOwnerUpdate(bool enable) {
    m_bOwnerUpdate = enable;
}

void CLQBaseCtrl::SetLangID(int id) {
    m_nLangID = id;
}

bool CLQBaseCtrl::IsChildExist(CLQBaseCtrl* ctrl) {
    return ctrl == this;
}

CLQBaseCtrl* CLQBaseCtrl::Clone() {
    return new CLQBaseCtrl(*this);
}

void CLQBaseCtrl::AddCallBack(int event, CLQWnd* target, void (CLQWnd::*handler)()) {
    StoreCallBack(event, {target, handler, &InvokeUntyped, {}});
}

void CLQBaseCtrl::StoreCallBack(int event, const _LQCallBack& record) {
    _LQCallBack& stored = m_mapCallBack[event];
    stored = record;
    if (stored.target)
        stored.targetLife = stored.target->WatchLife();
}

void CLQBaseCtrl::GetScreenXY(int& x, int& y) {
    x = m_nX;
    y = m_nY;
    if (m_pOwnerWnd) {
        int windowX;
        int windowY;
        m_pOwnerWnd->GetPos(windowX, windowY);
        x += windowX;
        y += windowY;
    }
}

_LQRect CLQBaseCtrl::GetScreenRect() {
    int x;
    int y;
    GetScreenXY(x, y);
    return korvane::RectOfSize(x, y, m_nWidth, m_nHeight);
}

void CLQBaseCtrl::DropPress() {
    if (m_nPress == 0)
        return;
    m_nPress = 0;
    Invalidate();
}

bool CLQBaseCtrl::IsNeedRedraw() {
    return m_bNeedRedraw;
}

bool CLQBaseCtrl::IsOwnerShow() {
    if (!IsShow())
        return false;
    if (m_pOwnerGroup)
        return m_pOwnerGroup->IsOwnerShow();
    return !m_pOwnerWnd || m_pOwnerWnd->IsShow();
}

void CLQBaseCtrl::SetCtrlName(const wchar_t* name) {
    m_strName = name ? name : L"";
}

const std::wstring& CLQBaseCtrl::GetCtrlName() const {
    return m_strName;
}

CLQWindow* CLQBaseCtrl::GetFatherWnd() const {
    return m_pOwnerWnd;
}

CLQGroupCtrl* CLQBaseCtrl::GetFatherGroup() const {
    return m_pOwnerGroup;
}
