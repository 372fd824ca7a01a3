#include "engine/widgets/elements/GUIElement.h"

#include <algorithm>

#include "engine/widgets/layout/LayoutArchive.h"
#include "engine/window/BaseCtrl.h"

CLQGUIElement::CLQGUIElement(_eGUIElementType type) : m_eType(type) {}

CLQGUIElement::CLQGUIElement(const CLQGUIElement& other)
    : m_eType(other.m_eType),
      m_nX(other.m_nX),
      m_nY(other.m_nY),
      m_nWidth(other.m_nWidth),
      m_nHeight(other.m_nHeight) {}

CLQGUIElement::~CLQGUIElement() = default;

void CLQGUIElement::ChangeLanguage() {}

void CLQGUIElement::ExchangeLayout(korvane::LayoutArchive& archive) {
    int x = m_nX;
    int y = m_nY;
    int width = m_nWidth;
    int height = m_nHeight;
    archive.Number(L"x", m_nX, [&x](int value) { x = value; });
    archive.Number(L"y", m_nY, [&y](int value) { y = value; });
    archive.Number(L"width", m_nWidth, [&width](int value) { width = value; });
    archive.Number(L"height", m_nHeight, [&height](int value) { height = value; });
    if (archive.IsLoading())
        SetRect(x, y, width, height);
}

void CLQGUIElement::SetFatherCtrl(CLQBaseCtrl* ctrl) {
    m_pFatherCtrl = ctrl;
    m_fatherLife = ctrl ? ctrl->WatchLife() : korvane::LifeWatch();
}

CLQBaseCtrl* CLQGUIElement::GetFatherCtrl() const {
    return m_fatherLife.IsAlive() ? m_pFatherCtrl : nullptr;
}

_eGUIElementType CLQGUIElement::GetGUIElementType() {
    return m_eType;
}

void CLQGUIElement::SetRect(int x, int y, int width, int height) {
    m_nX = std::clamp(x, -korvane::kMaxPosition, korvane::kMaxPosition);
    m_nY = std::clamp(y, -korvane::kMaxPosition, korvane::kMaxPosition);
    m_nWidth = std::clamp(width, 0, korvane::kMaxExtent);
    m_nHeight = std::clamp(height, 0, korvane::kMaxExtent);
    Invalidate();
}

_LQRect CLQGUIElement::ScreenRect() {
    _LQRect rect;
    CLQBaseCtrl* father = GetFatherCtrl();
    if (father)
        father->GetScreenXY(rect.left, rect.top);
    int width = m_nWidth;
    int height = m_nHeight;
    if (width > 0 && height > 0) {
        rect.left += m_nX;
        rect.top += m_nY;
    } else {
        width = 0;
        height = 0;
        if (father)
            father->GetSize(width, height);
    }
    rect.right = rect.left + width;
    rect.bottom = rect.top + height;
    return rect;
}

void CLQGUIElement::Invalidate() {
    if (CLQBaseCtrl* father = GetFatherCtrl())
        father->Invalidate();
}
