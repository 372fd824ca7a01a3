#include "controls/SwitchList.h"

#include <algorithm>
#include <cstdint>

#include "controls/parts/InvalidIndex.h"
#include "controls/parts/SwitchListLayout.h"
#include "engine/core/Rect.h"
#include "engine/draw/SurfManager.h"
#include "engine/text/FontManager.h"
#include "engine/text/LangManager.h"

namespace layout = korvane::switch_list;

using korvane::Saturated;

namespace {

/// Fonts above this size look like it, so that shrinking can begin here.
constexpr int kLargestFont = 512;

CLQSurfHandle* IconAt(const std::vector<CLQSurfHandle*>& icons, int item) {
    const auto at = static_cast<std::size_t>(item);
    if (item < 0 || at >= icons.size())
        korvane::FailInvalidIndex("CLQSwitchList::Draw", item, icons.size());
    return icons[at];
}

int WidthOf(CLQSurfHandle* icon) {
    return icon ? icon->GetWidth() : 0;
}

int HeightOf(CLQSurfHandle* icon) {
    return icon ? icon->GetHeight() : 0;
}

}  // namespace

CLQSwitchList::CLQSwitchList() : m_pFont(CLQFontManager::GetInstance()->GetDefaultFont()) {
    m_nKind = korvane::kKindSwitchList;
}

CLQSwitchList::CLQSwitchList(const CLQSwitchList& other) = default;

CLQSwitchList& CLQSwitchList::operator=(const CLQSwitchList& other) = default;

CLQSwitchList::~CLQSwitchList() = default;

void CLQSwitchList::SetIconNumPrePage(int count) {
    m_nIconNumPrePage = count;
}

void CLQSwitchList::SetIconNormalSurf(std::vector<CLQSurfHandle*>& icons) {
    m_vecIconNormal = icons;
}

void CLQSwitchList::SetIconActiveSurf(std::vector<CLQSurfHandle*>& icons) {
    m_vecIconActive = icons;
}

void CLQSwitchList::SetIconFocusSurf(std::vector<CLQSurfHandle*>& icons) {
    m_vecIconFocus = icons;
}

void CLQSwitchList::SetIconDisableSurf(std::vector<CLQSurfHandle*>& icons) {
    m_vecIconDisable = icons;
}

void CLQSwitchList::SetText(std::vector<std::wstring>& texts) {
    // The identifiers of earlier captions stay, and are meant to: the next change of the language shows them.
    m_vecText = texts;
    Invalidate();
}

void CLQSwitchList::SetText(std::vector<int>& ids) {
    m_vecLangID = ids;
    LookTextsUp();
}

void CLQSwitchList::ChangeLanguage() {
    if (!m_vecLangID.empty())
        LookTextsUp();
}

void CLQSwitchList::LookTextsUp() {
    m_vecText.clear();
    for (const int id : m_vecLangID)
        m_vecText.push_back(CLQLangManager::GetInstance()->GetString(id));
    Invalidate();
}

void CLQSwitchList::SetTextColor(_eTextColorType type, _LQColor& color) {
    const int slot = type;
    if (slot == eTextColor_All)
        m_colorText.fill(color);
    else if (slot >= 0 && slot < static_cast<int>(m_colorText.size()))
        m_colorText[static_cast<std::size_t>(slot)] = color;
    Invalidate();
}

void CLQSwitchList::SetFontSize(int width, int height) {
    m_nFontWidth = width;
    m_nFontHeight = height;
    Invalidate();
}

void CLQSwitchList::SetBkgSurf(const wchar_t* file) {
    m_surfBkg.Release();
    m_surfBkg = CLQSurfManager::GetInstance()->CreateSurface(file, true);
    Invalidate();
}

void CLQSwitchList::SetFouceIndex(int index) {
    if (index >= 0 && static_cast<std::size_t>(index) >= m_vecIconFocus.size())
        return;
    m_nFocus = index;
    Invalidate();
}

void CLQSwitchList::SetDisable(bool disable) {
    m_bDisable = disable;
    Invalidate();
}

void CLQSwitchList::SetPageDown(bool down) {
    m_bPageDown = down;
    Invalidate();
}

void CLQSwitchList::SetCallBackClick(ClickCallBack callBack) {
    m_pfnClick = callBack;
}

void CLQSwitchList::GetPosForCenter(int srcW, int srcH, int dstW, int dstH, int& x, int& y) {
    const layout::Offset offset = layout::CenterFitted(srcW, srcH, dstW, dstH);
    x = offset.x;
    y = offset.y;
}

int CLQSwitchList::GetIndexByMousePos(int pos) {
    // Measured from the position in the window, not from the one on the screen, and meant.
    return layout::ItemAt(std::int64_t{pos} - m_nY, m_nHeight, m_nIconNumPrePage, m_bPageDown);
}

bool CLQSwitchList::DoMessage(_LQMessage* msg) {
    if (!msg)
        return false;
    switch (msg->code) {
        case korvane::kMsgPress:
            if (m_bDisable || !CheckPoint(msg->x, msg->y))
                return false;
            m_nPress = 1;
            m_nPressDown = GetIndexByMousePos(msg->y);
            m_nCurPress = m_nPressDown;
            Invalidate();
            return true;
        case korvane::kMsgRelease:
            // Disabling the list does not end the press. It waits for a release after the list is enabled.
            if (m_nPress != 1 || m_bDisable) {
                m_nCurPress = layout::kNoItem;
                return false;
            }
            DoRelease(*msg);
            return true;
        default:
            return false;
    }
}

void CLQSwitchList::DoRelease(const _LQMessage& msg) {
    const int item = m_nCurPress;
    m_nPress = 0;
    m_nCurPress = layout::kNoItem;
    m_nPressUp = GetIndexByMousePos(msg.y);
    Invalidate();
    if (m_nPressUp != m_nPressDown)
        return;

    int index = m_nPressDown;
    bool changed = false;
    if (layout::IsPageSwitch(m_nPressDown, m_nIconNumPrePage)) {
        m_bPageDown = !m_bPageDown;
    } else {
        index = item;
        changed = m_nFocus != item;
        // A second click takes the selection away. A first one leaves it to the application.
        if (!changed)
            m_nFocus = layout::kNoItem;
    }
    if (m_pfnClick)
        m_pfnClick(index, changed);
}

void CLQSwitchList::Draw(CLQSurfHandle& target) {
    if (m_pOwnerWnd && !IsNeedRedraw())
        return;
    int x = 0;
    int y = 0;
    GetScreenXY(x, y);
    DrawBackground(target, x, y);
    DrawCells(target, x, y);
    if (m_pOwnerWnd)
        Redraw(false);
}

void CLQSwitchList::DrawBackground(CLQSurfHandle& target, int x, int y) {
    int sourceX = 0;
    int sourceY = 0;
    GetPosForCenter(m_surfBkg.GetWidth(), m_surfBkg.GetHeight(), m_nWidth, m_nHeight, sourceX, sourceY);
    // The margins move the picture up and left instead of down and right, and are meant to.
    target.BitBlt(m_surfBkg, x, y, m_nWidth, m_nHeight, sourceX, sourceY);
}

void CLQSwitchList::DrawCells(CLQSurfHandle& target, int x, int y) {
    const bool hasSecondPage =
        static_cast<std::int64_t>(m_vecIconNormal.size()) > std::int64_t{m_nIconNumPrePage};
    const int first = hasSecondPage && m_bPageDown ? m_nIconNumPrePage : 0;
    std::int64_t top = y;
    for (int cell = 0; cell < m_nIconNumPrePage; ++cell) {
        const int item = Saturated(std::int64_t{first} + cell);
        const CellLook look = LookOf(item);
        if (look.icon)
            target.BitBlt(*look.icon, x, Saturated(top), look.width, look.height, 0, 0);
        const auto at = static_cast<std::size_t>(item);
        if (look.height > 0 && at < m_vecText.size() && !m_vecText[at].empty())
            DrawCaption(target, m_vecText[at], look, x, Saturated(top));
        // Cells of all looks are as high as the normal icon.
        top += HeightOf(IconAt(m_vecIconNormal, item));
    }
}

CLQSwitchList::CellLook CLQSwitchList::LookOf(int item) const {
    CellLook look;
    CLQSurfHandle* sized = nullptr;
    if (m_bDisable) {
        // Whether a disabled item shows, and in what size, is told by its focus icon.
        sized = IconAt(m_vecIconFocus, item);
        look.icon = IconAt(m_vecIconDisable, item);
        look.color = m_colorText[eTextColor_Disable];
    } else if (m_nPress == 1 && item == m_nCurPress) {
        sized = look.icon = IconAt(m_vecIconActive, item);
        look.color = m_colorText[eTextColor_Active];
    } else if (item == m_nFocus) {
        sized = look.icon = IconAt(m_vecIconFocus, item);
        look.color = m_colorText[eTextColor_Focus];
    } else {
        sized = look.icon = IconAt(m_vecIconNormal, item);
        look.color = m_colorText[eTextColor_Normal];
    }
    look.width = WidthOf(sized);
    look.height = HeightOf(sized);
    return look;
}

void CLQSwitchList::DrawCaption(CLQSurfHandle& target, const std::wstring& text, const CellLook& look, int x,
                                int y) {
    if (!m_pFont)
        return;
    int width = 0;
    int height = 0;
    FitFont(text, width, height);
    const int left = width < m_nWidth ? x + (m_nWidth - width) / 2 : x;
    _LQRect clip = korvane::RectOfEdges(x, y, Saturated(std::int64_t{x} + look.width),
                                        Saturated(std::int64_t{y} + look.height));
    _LQColor color = look.color;
    target.DrawTextW(text.c_str(), m_pFont, left, Saturated(std::int64_t{y} + look.height - height),
                     eText_Left, color, &clip, look.width);
}

/// Sets the font to the greatest size, step by step from the captions' own, in which the text is narrower
/// than the list. Returns the text's size in pixels.
void CLQSwitchList::FitFont(const std::wstring& text, int& width, int& height) {
    int fontWidth = m_nFontWidth;
    int fontHeight = m_nFontHeight;
    m_pFont->SetFontSize(fontWidth, fontHeight);
    m_pFont->GetStringSize(text.c_str(), width, height, false);
    while (width >= m_nWidth && std::min(fontWidth, fontHeight) > layout::kSmallestShrunkFont) {
        const int step = std::max(1, std::min(fontWidth, fontHeight) - kLargestFont);
        fontWidth -= step;
        fontHeight -= step;
        m_pFont->SetFontSize(fontWidth, fontHeight);
        m_pFont->GetStringSize(text.c_str(), width, height, false);
    }
}
