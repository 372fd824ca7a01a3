#include "engine/window/GroupCtrl.h"

#include <utility>

#include "engine/window/Window.h"

CLQGroupCtrl::CLQGroupCtrl() {
    m_nKind = korvane::kKindGroup;
}

CLQGroupCtrl::CLQGroupCtrl(const CLQGroupCtrl& other)
    : CLQBaseCtrl(other), m_children(other.m_children), m_background(other.m_background) {}

CLQGroupCtrl& CLQGroupCtrl::operator=(const CLQGroupCtrl& other) {
    if (this == &other)
        return *this;
    CLQBaseCtrl::operator=(other);
    // The source may be a child of this group and end with its place in it.
    korvane::ChildList children = other.m_children;
    korvane::Background background = other.m_background;
    AbandonChildren();
    ReleaseRelationMap();
    m_children = std::move(children);
    m_background = std::move(background);
    AdoptOrphans();
    return *this;
}

CLQGroupCtrl::~CLQGroupCtrl() {
    AbandonChildren();
}

void CLQGroupCtrl::AbandonChildren() {
    for (std::size_t i = 0; i < m_children.Size(); ++i) {
        CLQBaseCtrl* child = m_children.At(i);
        if (child && child->m_pOwnerGroup == this) {
            child->m_pOwnerGroup = nullptr;
            child->SetFatherWnd(nullptr);
        }
    }
    m_children.Clear();
    m_captured = korvane::Capture();
}

/// A copy shares the children of its source, and owns them once the source has ended.
void CLQGroupCtrl::AdoptOrphans() {
    for (std::size_t i = 0; i < m_children.Size(); ++i) {
        CLQBaseCtrl* child = m_children.At(i);
        if (child && !child->m_pOwnerGroup && !child->m_pOwnerWnd) {
            child->m_pOwnerGroup = this;
            child->SetFatherWnd(m_pOwnerWnd);
        }
    }
}

void CLQGroupCtrl::Move(int dx, int dy) {
    CLQBaseCtrl::Move(dx, dy);
}

void CLQGroupCtrl::MoveTo(int x, int y) {
    const int oldX = m_nX;
    const int oldY = m_nY;
    CLQBaseCtrl::MoveTo(x, y);
    const int dx = m_nX - oldX;
    const int dy = m_nY - oldY;
    for (std::size_t i = 0; i < m_children.Size(); ++i) {
        if (CLQBaseCtrl* child = m_children.At(i))
            child->Move(dx, dy);
    }
}

void CLQGroupCtrl::SetShow(bool show) {
    if (show == m_bShow)
        return;
    // The children's places are repainted too, while they can still be asked whether they are shown.
    if (!show)
        InvalidateChildren();
    CLQBaseCtrl::SetShow(show);
    if (!show)
        korvane::DropPress(*this);
}

void CLQGroupCtrl::LoadResource() {
    CLQBaseCtrl::LoadResource();
    const korvane::LifeWatch self = WatchLife();
    for (std::size_t i = 0; self.IsAlive() && i < m_children.Size(); ++i) {
        if (CLQBaseCtrl* child = m_children.At(i))
            child->LoadResource();
    }
}

bool CLQGroupCtrl::DoMessage(_LQMessage* msg) {
    if (!msg || !m_bEnabled)
        return false;
    AdoptOrphans();
    return korvane::RouteToChildren(m_children, m_captured, *msg, WatchLife());
}

void CLQGroupCtrl::Draw(CLQSurfHandle& target) {
    if (m_pOwnerWnd && !IsNeedRedraw())
        return;
    const korvane::LifeWatch self = WatchLife();
    if (CLQSurface* surface = target.GetSurface()) {
        AdoptOrphans();
        m_background.Draw(target, GetScreenRect());
        korvane::DrawChildren(m_children, target, *surface, self);
    }
    if (self.IsAlive() && m_pOwnerWnd)
        Redraw(false);
}

void CLQGroupCtrl::ChangeLanguage() {
    CLQBaseCtrl::ChangeLanguage();
    const korvane::LifeWatch self = WatchLife();
    for (std::size_t i = 0; self.IsAlive() && i < m_children.Size(); ++i) {
        if (CLQBaseCtrl* child = m_children.At(i))
            child->ChangeLanguage();
    }
}

void CLQGroupCtrl::SetFatherWnd(CLQWindow* window) {
    const korvane::LifeWatch self = WatchLife();
    CLQBaseCtrl::SetFatherWnd(window);
    if (!self.IsAlive())
        return;
    m_captured = korvane::Capture();
    AdoptOrphans();
    for (std::size_t i = 0; self.IsAlive() && i < m_children.Size(); ++i) {
        CLQBaseCtrl* child = m_children.At(i);
        if (child && child->m_pOwnerGroup == this)
            child->SetFatherWnd(window);
    }
}

void CLQGroupCtrl::Redraw(bool needed) {
    CLQBaseCtrl::Redraw(needed);
    for (std::size_t i = 0; i < m_children.Size(); ++i) {
        if (CLQBaseCtrl* child = m_children.At(i))
            child->Redraw(needed);
    }
}

void CLQGroupCtrl::Invalidate() {
    CLQBaseCtrl::Invalidate();
    InvalidateChildren();
}

void CLQGroupCtrl::InvalidateChildren() {
    for (std::size_t i = 0; i < m_children.Size(); ++i) {
        if (CLQBaseCtrl* child = m_children.At(i))
            child->Invalidate();
    }
}

void CLQGroupCtrl::DrawBaseCtrl(CLQSurfHandle& target, int x, int y) {
    CLQBaseCtrl::DrawBaseCtrl(target, x, y);
}

void CLQGroupCtrl::EnableOwnerUpdate(bool enable) {
    CLQBaseCtrl::EnableOwnerUpdate(enable);
    for (std::size_t i = 0; i < m_children.Size(); ++i) {
        if (CLQBaseCtrl* child = m_children.At(i))
            child->EnableOwnerUpdate(enable);
    }
}

bool CLQGroupCtrl::IsChildExist(CLQBaseCtrl* ctrl) {
    if (!ctrl)
        return false;
    if (ctrl == this)
        return true;
    for (std::size_t i = 0; i < m_children.Size(); ++i) {
        CLQBaseCtrl* child = m_children.At(i);
        if (child && child->IsChildExist(ctrl))
            return true;
    }
    return false;
}

CLQBaseCtrl* CLQGroupCtrl::Clone() {
    auto clone = std::make_unique<CLQGroupCtrl>(*this);
    clone->m_children.Clear();
    for (std::size_t i = 0; i < m_children.Size(); ++i) {
        if (CLQBaseCtrl* child = m_children.At(i))
            clone->AddChild(child->Clone());
    }
    return clone.release();
}

void CLQGroupCtrl::AddChild(CLQBaseCtrl* child) {
    if (!child || m_children.Contains(child) || child->IsChildExist(this))
        return;
    const korvane::LifeWatch self = WatchLife();
    const korvane::LifeWatch added = child->WatchLife();
    child->LeaveOwner();
    if (!self.IsAlive() || !added.IsAlive())
        return;
    m_children.Compact();
    m_children.Add(child);
    child->m_pOwnerGroup = this;
    child->SetFatherWnd(m_pOwnerWnd);
    child->Invalidate();
}

bool CLQGroupCtrl::DelChild(CLQBaseCtrl* child, bool destroy) {
    if (!m_children.Remove(child, false))
        return false;
    const korvane::LifeWatch removed = child->WatchLife();
    child->m_pOwnerGroup = nullptr;
    child->SetFatherWnd(nullptr);
    if (destroy && removed.IsAlive() && child->IsCreatedWithNew())
        delete child;
    return true;
}

void CLQGroupCtrl::SetBkgSurf(const wchar_t* file) {
    m_background.SetImage(file);
    Invalidate();
}

void CLQGroupCtrl::EnableBkgColor(bool enable, _LQColor* color) {
    m_background.EnableColor(enable, color);
    Invalidate();
}

int CLQGroupCtrl::GetChildCount() const {
    return static_cast<int>(m_children.Size());
}

CLQBaseCtrl* CLQGroupCtrl::GetChild(int index) const {
    return index < 0 ? nullptr : m_children.At(static_cast<std::size_t>(index));
}
