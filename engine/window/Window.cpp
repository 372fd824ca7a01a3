#include "engine/window/Window.h"

#include <algorithm>

#include "engine/core/Rect.h"
#include "engine/window/Screen.h"
#include "engine/window/parts/DrawShift.h"

CLQWindow::CLQWindow() {
    m_nKind = korvane::kKindWindow;
}

CLQWindow::CLQWindow(const CLQWindow& other)
    : CLQWnd(other), m_children(other.m_children), m_background(other.m_background) {}

CLQWindow& CLQWindow::operator=(const CLQWindow& other) {
    if (this == &other)
        return *this;
    CLQScreen::GetInstance()->InvalidateRect(ScreenRect());
    CLQWnd::operator=(other);
    AbandonChildren();
    m_children = other.m_children;
    m_background = other.m_background;
    InvalidateRect(ScreenRect());
    return *this;
}

CLQWindow::~CLQWindow() {
    CLQScreen::GetInstance()->Remove(this);
    AbandonChildren();
}

void CLQWindow::AbandonChildren() {
    while (!m_placed.empty())
        m_placed.back()->SetFatherWnd(nullptr);
    m_children.Clear();
    DropInput();
    m_pFocusCtrl = nullptr;
}

/// A copy shares the controls of its source, and owns them once the source has ended.
void CLQWindow::AdoptOrphans() {
    for (std::size_t i = 0; i < m_children.Size(); ++i) {
        CLQBaseCtrl* child = m_children.At(i);
        if (child && !child->m_pOwnerGroup && !child->m_pOwnerWnd)
            child->SetFatherWnd(this);
    }
}

void CLQWindow::DropInput() {
    m_captured = korvane::Capture();
    m_recvMsg = korvane::Capture();
    m_keyPressed = korvane::Capture();
    m_bHoldsPress = false;
    korvane::DropPresses(m_children);
}

void CLQWindow::ForgetCtrl(CLQBaseCtrl* ctrl) {
    m_placed.erase(std::remove(m_placed.begin(), m_placed.end(), ctrl), m_placed.end());
    for (korvane::Capture* capture : {&m_captured, &m_recvMsg, &m_keyPressed}) {
        if (capture->ctrl == ctrl)
            *capture = korvane::Capture();
    }
    if (m_pFocusCtrl == ctrl)
        m_pFocusCtrl = nullptr;
}

bool CLQWindow::Create(int x, int y, int width, int height) {
    const _LQRect before = ScreenRect();
    if (!CLQWnd::Create(x, y, width, height))
        return false;
    CLQScreen* screen = CLQScreen::GetInstance();
    if (screen->Contains(this) && m_bShow)
        screen->InvalidateRect(before);
    screen->BringToTop(this);
    return true;
}

void CLQWindow::SetSize(int width, int height) {
    if (m_bShow)
        CLQScreen::GetInstance()->InvalidateRect(ScreenRect());
    CLQWnd::SetSize(width, height);
    InvalidateRect(ScreenRect());
}

void CLQWindow::Move(int dx, int dy) {
    CLQWnd::Move(dx, dy);
}

void CLQWindow::MoveTo(int x, int y) {
    if (m_bShow)
        CLQScreen::GetInstance()->InvalidateRect(ScreenRect());
    CLQWnd::MoveTo(x, y);
    InvalidateRect(ScreenRect());
}

void CLQWindow::SetShow(bool show) {
    if (show == m_bShow)
        return;
    CLQWnd::SetShow(show);
    if (show) {
        InvalidateRect(ScreenRect());
    } else {
        DropInput();
        CLQScreen::GetInstance()->InvalidateRect(ScreenRect());
    }
}

void CLQWindow::LoadResource() {
    const korvane::LifeWatch self = WatchLife();
    for (std::size_t i = 0; self.IsAlive() && i < m_children.Size(); ++i) {
        if (CLQBaseCtrl* child = m_children.At(i))
            child->LoadResource();
    }
}

void CLQWindow::Draw(CLQSurfHandle& target) {
    CLQSurface* surface = target.GetSurface();
    if (!surface)
        return;
    const _LQRect area = korvane::Intersect(surface->GetClip(), ScreenRect());
    if (korvane::IsEmpty(area))
        return;
    AdoptOrphans();
    const korvane::DrawClip clip(*surface, area);
    FillBkgRect(target, area.left, area.top, area.right, area.bottom);
    korvane::DrawChildren(m_children, target, *surface, WatchLife());
}

bool CLQWindow::DoCommand(_LQMessage*) {
    return false;
}

void CLQWindow::ChangeLanguage() {
    const korvane::LifeWatch self = WatchLife();
    for (std::size_t i = 0; self.IsAlive() && i < m_children.Size(); ++i) {
        if (CLQBaseCtrl* child = m_children.At(i))
            child->ChangeLanguage();
    }
}

std::wstring CLQWindow::GetDialogName() {
    return std::wstring();
}

bool CLQWindow::OnInit() {
    return true;
}

void CLQWindow::OnTransEffect(CLQSurfHandle&, bool) {}

void CLQWindow::OnBtnBackPressUp() {}

void CLQWindow::AddChild(CLQBaseCtrl* child) {
    if (!child || m_children.Contains(child))
        return;
    const korvane::LifeWatch self = WatchLife();
    const korvane::LifeWatch added = child->WatchLife();
    child->LeaveOwner();
    if (!self.IsAlive() || !added.IsAlive())
        return;
    m_children.Compact();
    m_children.Add(child);
    child->SetFatherWnd(this);
    child->Invalidate();
}

bool CLQWindow::DelChild(CLQBaseCtrl* child, bool destroy) {
    if (!m_children.Remove(child, false))
        return false;
    const korvane::LifeWatch removed = child->WatchLife();
    child->SetFatherWnd(nullptr);
    if (destroy && removed.IsAlive() && child->IsCreatedWithNew())
        delete child;
    return true;
}

int CLQWindow::GetChildCount() const {
    return static_cast<int>(m_children.Size());
}

CLQBaseCtrl* CLQWindow::GetChild(int index) const {
    return index < 0 ? nullptr : m_children.At(static_cast<std::size_t>(index));
}

bool CLQWindow::HoldsCtrl(const void* ctrl) const {
    auto* address = static_cast<CLQBaseCtrl*>(const_cast<void*>(ctrl));
    for (std::size_t i = 0; i < m_children.Size(); ++i) {
        CLQBaseCtrl* child = m_children.At(i);
        if (child && child->IsChildExist(address))
            return true;
    }
    return false;
}

void CLQWindow::EnableUpdateRect(bool enable) {
    m_bUpdateRect = enable;
}

void CLQWindow::ClearUpdateRectVec() {
    m_updateRects.Clear();
}

void CLQWindow::FillBkgRect(CLQSurfHandle& target, int left, int top, int right, int bottom) {
    CLQSurface* surface = target.GetSurface();
    if (!surface)
        return;
    const korvane::DrawClip clip(*surface, korvane::RectOfEdges(left, top, right, bottom));
    m_background.Draw(target, ScreenRect());
}

void CLQWindow::SetBkgSurf(const wchar_t* file) {
    m_background.SetImage(file);
    InvalidateRect(ScreenRect());
}

void CLQWindow::EnableBkgColor(bool enable, _LQColor* color) {
    m_background.EnableColor(enable, color);
    InvalidateRect(ScreenRect());
}

void CLQWindow::InvalidateRect(const _LQRect& rect) {
    if (!m_bUpdateRect || !IsShow())
        return;
    CLQScreen* screen = CLQScreen::GetInstance();
    if (!screen->Contains(this))
        return;
    const _LQRect visible = korvane::Intersect(rect, ScreenRect());
    if (korvane::IsEmpty(visible))
        return;
    m_updateRects.Add(visible);
    screen->RequestPaint(visible);
}

const korvane::UpdateRegion& CLQWindow::GetUpdateRects() const {
    return m_updateRects;
}

bool CLQWindow::IsOpaqueIn(const _LQRect& rect) {
    return IsShow() && m_background.IsOpaqueIn(ScreenRect(), rect);
}

_LQRect CLQWindow::ScreenRect() const {
    return korvane::RectOfSize(m_nX, m_nY, m_nWidth, m_nHeight);
}
