#include "engine/window/GroupCtrl.h"

#include "engine/draw/SurfManager.h"
#include "engine/window/DrawShift.h"
#include "engine/window/UpdateRegion.h"
#include "engine/window/Window.h"

CLQGroupCtrl::CLQGroupCtrl() {
    m_nKind = korvane::kKindGroup;
}

CLQGroupCtrl::CLQGroupCtrl(const CLQGroupCtrl& other)
    : CLQBaseCtrl(other),
      m_children(other.m_children),
      m_strBkgFile(other.m_strBkgFile),
      m_surfBkg(other.m_surfBkg),
      m_bBkgColor(other.m_bBkgColor),
      m_colorBkg(other.m_colorBkg) {}

CLQGroupCtrl& CLQGroupCtrl::operator=(const CLQGroupCtrl& other) {
    if (this == &other)
        return *this;
    CLQBaseCtrl::operator=(other);
    AbandonChildren();
    m_children = other.m_children;
    ReleaseRelationMap();
    m_strBkgFile = other.m_strBkgFile;
    m_surfBkg = other.m_surfBkg;
    m_bBkgColor = other.m_bBkgColor;
    m_colorBkg = other.m_colorBkg;
    return *this;
}

CLQGroupCtrl::~CLQGroupCtrl() {
    AbandonChildren();
}

void CLQGroupCtrl::AbandonChildren() {
    for (std::size_t i = 0; i < m_children.Size(); ++i) {
        CLQBaseCtrl* child = m_children.At(i);
        if (child && child->m_pOwnerGroup == this) {
            child->SetFatherWnd(nullptr);
            child->m_pOwnerGroup = nullptr;
        }
    }
    m_children.Clear();
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
        DropPresses();
}

void CLQGroupCtrl::DropPresses() {
    m_nPress = 0;
    m_captured = korvane::Capture();
    for (std::size_t i = 0; i < m_children.Size(); ++i) {
        CLQBaseCtrl* child = m_children.At(i);
        if (!child)
            continue;
        child->m_nPress = 0;
        if (auto* group = dynamic_cast<CLQGroupCtrl*>(child))
            group->DropPresses();
    }
}

void CLQGroupCtrl::LoadResource() {
    CLQBaseCtrl::LoadResource();
    for (std::size_t i = 0; i < m_children.Size(); ++i) {
        if (CLQBaseCtrl* child = m_children.At(i))
            child->LoadResource();
    }
}

bool CLQGroupCtrl::DoMessage(_LQMessage* msg) {
    if (!msg || !m_bEnabled)
        return false;
    return korvane::RouteToChildren(m_children, m_captured, *msg, WatchLife());
}

void CLQGroupCtrl::Draw(CLQSurfHandle& target) {
    if (m_pOwnerWnd && !IsNeedRedraw())
        return;
    if (CLQSurface* surface = target.GetSurface()) {
        DrawBackground(target);
        korvane::DrawChildren(m_children, target, *surface);
    }
    if (m_pOwnerWnd)
        Redraw(false);
}

void CLQGroupCtrl::DrawBackground(CLQSurfHandle& target) {
    int x;
    int y;
    GetScreenXY(x, y);
    if (m_bBkgColor)
        target.FillRect(x, y, x + m_nWidth, y + m_nHeight, m_colorBkg, m_colorBkg.a != 255);
    target.BitBlt(m_surfBkg, x, y, m_nWidth, m_nHeight, 0, 0);
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
    CLQBaseCtrl::SetFatherWnd(window);
    m_captured = korvane::Capture();
    for (std::size_t i = 0; i < m_children.Size(); ++i) {
        CLQBaseCtrl* child = m_children.At(i);
        if (!child)
            continue;
        // A copy of a group takes the children over once its source has ended.
        if (!child->m_pOwnerGroup)
            child->m_pOwnerGroup = this;
        if (child->m_pOwnerGroup == this)
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
    child->LeaveOwner();
    m_children.Compact();
    m_children.Add(child);
    child->m_pOwnerGroup = this;
    child->SetFatherWnd(m_pOwnerWnd);
    child->Invalidate();
}

bool CLQGroupCtrl::DelChild(CLQBaseCtrl* child, bool destroy) {
    if (!m_children.Contains(child))
        return false;
    child->SetFatherWnd(nullptr);
    child->m_pOwnerGroup = nullptr;
    return m_children.Remove(child, destroy);
}

void CLQGroupCtrl::SetBkgSurf(const wchar_t* file) {
    m_strBkgFile = file ? file : L"";
    m_surfBkg.Release();
    if (!m_strBkgFile.empty())
        m_surfBkg = CLQSurfManager::GetInstance()->CreateSurface(m_strBkgFile.c_str(), true);
    Invalidate();
}

void CLQGroupCtrl::EnableBkgColor(bool enable, _LQColor* color) {
    m_bBkgColor = enable;
    if (color)
        m_colorBkg = *color;
    Invalidate();
}

int CLQGroupCtrl::GetChildCount() const {
    return static_cast<int>(m_children.Size());
}

CLQBaseCtrl* CLQGroupCtrl::GetChild(int index) const {
    return index < 0 ? nullptr : m_children.At(static_cast<std::size_t>(index));
}
