#include "controls/MenuItemCtrl.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "controls/parts/FrameName.h"
#include "controls/parts/Saturated.h"
#include "controls/parts/SharedElement.h"
#include "engine/draw/SurfManager.h"
#include "engine/system/System.h"
#include "engine/text/LangManager.h"
#include "engine/window/Screen.h"
#include "platform/coredll.h"

using korvane::Saturated;

namespace {

constexpr int kRefreshPeriodMs = 100;

/// Border pieces of one look of the frame.
constexpr int kPiecesPerLook = 4;

CLQSurfHandle LoadOwnImage(const wchar_t* file) {
    return CLQSurfManager::GetInstance()->CreateSurface(file, false);
}

int Sum(int a, int b) {
    return Saturated(std::int64_t{a} + b);
}

void DrawWhole(CLQSurfHandle& target, CLQSurfHandle& image, int x, int y) {
    target.BitBlt(image, x, y, image.GetWidth(), image.GetHeight(), 0, 0);
}

}  // namespace

CLQMenuItemCtrl::CLQMenuItemCtrl() {
    m_nKind = korvane::kKindMenuItem;
    m_timerRefresh.SetTimer(kRefreshPeriodMs);
    m_timerRefresh.SetCallBack(this, &CLQMenuItemCtrl::OnRefreshTimer);
    m_timerRefresh.StartTimer();
}

// The refresh timer is copied as it stands: its ticks go on to the tile that was copied. A copy is for
// showing; its sequence plays only when its OnRefreshTimer is called.
CLQMenuItemCtrl::CLQMenuItemCtrl(const CLQMenuItemCtrl& other) = default;

CLQMenuItemCtrl& CLQMenuItemCtrl::operator=(const CLQMenuItemCtrl& other) = default;

CLQMenuItemCtrl::~CLQMenuItemCtrl() = default;

void CLQMenuItemCtrl::SetImage(const wchar_t* pattern, int count, int width, int height, int period) {
    m_vecFrame.clear();
    m_strFramePattern = pattern ? pattern : L"";
    m_nFrameCount = std::max(count, 0);
    m_nShowWidth = width;
    m_nShowHeight = height;
    m_timerRefresh.SetTimer(period);
    m_nFrame = 0;
    m_bPlaying = m_nFrameCount > 0 && !HasThumbNail();
    Invalidate();
}

void CLQMenuItemCtrl::SetImagePos(int x, int y) {
    m_nImageX = x;
    m_nImageY = y;
    Invalidate();
}

void CLQMenuItemCtrl::GetImageShowSize(int& width, int& height) {
    width = m_nShowWidth;
    height = m_nShowHeight;
}

void CLQMenuItemCtrl::SetThumbNail(CLQSurfHandle& thumbNail) {
    m_surfThumbNail = thumbNail;
    m_bPlaying = !HasThumbNail();
    if (!m_bPlaying)
        m_timerRefresh.StopTimer();
    else if (m_bImagePlay && !m_timerRefresh.IsActived())
        m_timerRefresh.StartTimer();
    Invalidate();
}

void CLQMenuItemCtrl::EnableImagePlay(bool enable) {
    m_bImagePlay = enable;
    if (!m_bPlaying || !enable || HasThumbNail())
        m_timerRefresh.StopTimer();
    else if (!m_timerRefresh.IsActived())
        m_timerRefresh.StartTimer();
}

void CLQMenuItemCtrl::ReleaseImageSurf() {
    m_vecFrame.clear();
    m_nFrame = 0;
}

void CLQMenuItemCtrl::SetBorderSurf(CLQSurfHandle& image, int x, int y, eBorderDirection direction) {
    const int piece = direction;
    if (piece < 0 || piece >= kBorderPieces)
        return;
    m_arrBorder[static_cast<std::size_t>(piece)] = {image, x, y};
}

void CLQMenuItemCtrl::SetBorderSurf(const wchar_t* file, int x, int y, eBorderDirection direction) {
    CLQSurfHandle image = LoadOwnImage(file);
    SetBorderSurf(image, x, y, direction);
}

void CLQMenuItemCtrl::SetPressedShaderSurf(CLQSurfHandle& image) {
    m_surfPressedShader = image;
}

void CLQMenuItemCtrl::SetPressedShaderSurf(const wchar_t* file) {
    m_surfPressedShader = LoadOwnImage(file);
}

void CLQMenuItemCtrl::SetTextSurf(const wchar_t* file) {
    m_surfText = LoadOwnImage(file);
}

void CLQMenuItemCtrl::SetDesableTextSurf(const wchar_t* file) {
    m_surfDesableText = LoadOwnImage(file);
}

void CLQMenuItemCtrl::SetTextShaderSurf(const wchar_t* file) {
    m_surfTextShader = LoadOwnImage(file);
}

void CLQMenuItemCtrl::SetTextPos(int x, int y) {
    m_nTextX = x;
    m_nTextY = y;
    Invalidate();
}

void CLQMenuItemCtrl::BindTextElement(CLQTextElement* element) {
    if (element) {
        std::shared_ptr<CLQTextElement> shared = korvane::ShareTextElement(element, this);
        if (!shared)
            return;
        m_pTextElement = std::move(shared);
        m_pTextElement->SetFatherCtrl(this);
    } else {
        m_pTextElement.reset();
    }
    Invalidate();
}

void CLQMenuItemCtrl::SetRectAshSurf(const wchar_t* file) {
    m_surfRectAsh = LoadOwnImage(file);
}

void CLQMenuItemCtrl::EnableRectAshSurf(bool enable) {
    m_bRectAsh = enable;
    Invalidate();
}

void CLQMenuItemCtrl::EnableDesableState(bool disable) {
    m_bDesable = disable;
    Invalidate();
}

bool CLQMenuItemCtrl::IsDesableState() {
    return m_bDesable;
}

void CLQMenuItemCtrl::SetCurSourceSurf(const wchar_t* file) {
    m_surfCurSource = LoadOwnImage(file);
}

void CLQMenuItemCtrl::EnableCurSource(bool enable) {
    m_bCurSource = enable;
    Invalidate();
}

void CLQMenuItemCtrl::SetLongPressTime(int ms) {
    m_nLongPressTime = ms;
    if (m_pLongPressTimer)
        m_pLongPressTimer->SetTimer(ms);
}

bool CLQMenuItemCtrl::HasResponseLongPress() {
    return m_bLongPressAnswered;
}

void CLQMenuItemCtrl::ChangeLanguage() {
    CLQBaseCtrl::ChangeLanguage();
    if (!m_pTextElement || m_pTextElement->GetLangID() == 0)
        return;
    m_pTextElement->SetText(CLQLangManager::GetInstance()->GetString(m_pTextElement->GetLangID()).c_str());
    // The element tells one tile of those that share it.
    Invalidate();
}

bool CLQMenuItemCtrl::DoMessage(_LQMessage* msg) {
    if (!msg)
        return false;
    switch (msg->code) {
        case korvane::kMsgPress:
            return DoPress(*msg);
        case korvane::kMsgRelease:
            if (m_nPress != 1)
                return false;
            DoRelease();
            return true;
        default:
            return false;
    }
}

bool CLQMenuItemCtrl::DoPress(const _LQMessage& msg) {
    if (!CheckPoint(msg.x, msg.y))
        return false;
    m_nPress = 1;
    m_bLongPressAnswered = false;
    StopLongPress();
    if (HasLongPressHandler())
        StartLongPress();
    Invalidate();
    FireEvent(korvane::kEventPressed);
    return true;
}

void CLQMenuItemCtrl::DoRelease() {
    m_nPress = 0;
    StopLongPress();
    Invalidate();
    ::PostMessageW(CLQScreen::GetInstance()->GetHWND(), korvane::kMsgCommand, reinterpret_cast<WPARAM>(this),
                   korvane::kMsgRelease);
}

bool CLQMenuItemCtrl::HasLongPressHandler() const {
    const auto found = m_mapCallBack.find(korvane::kEventLongPress);
    return found != m_mapCallBack.end() && found->second.target && found->second.handler &&
           found->second.targetLife.IsAlive();
}

void CLQMenuItemCtrl::StartLongPress() {
    if (!m_pLongPressTimer)
        m_pLongPressTimer = std::make_shared<CLQTimer>();
    // A copy of this tile may have used the timer last.
    m_pLongPressTimer->SetTimer(m_nLongPressTime);
    m_pLongPressTimer->SetCallBack(this, &CLQMenuItemCtrl::OnLongPressTimer);
    m_pLongPressTimer->StartTimer();
}

void CLQMenuItemCtrl::StopLongPress() {
    if (m_pLongPressTimer)
        m_pLongPressTimer->StopTimer();
}

void CLQMenuItemCtrl::OnLostFocus() {
    StopLongPress();
}

void CLQMenuItemCtrl::OnLongPressTimer(void*, int) {
    // The engine has dropped the press of a tile that was hidden or disabled meanwhile.
    const bool isDropped = m_nPress != 1 && m_pLongPressTimer && m_pLongPressTimer->IsActived();
    StopLongPress();
    if (!isDropped && FireEvent(korvane::kEventLongPress))
        m_bLongPressAnswered = true;
}

void CLQMenuItemCtrl::OnRefreshTimer(void*, int) {
    m_nFrame = m_nFrame + 1 < m_nFrameCount ? m_nFrame + 1 : 0;
    Invalidate();
}

void CLQMenuItemCtrl::Draw(CLQSurfHandle& target) {
    if (m_pOwnerWnd && !IsNeedRedraw())
        return;
    int x = 0;
    int y = 0;
    GetScreenXY(x, y);
    DrawPicture(target, Sum(x, m_nImageX), Sum(y, m_nImageY));
    DrawBorder(target, x, y);
    DrawCaption(target, Sum(x, m_nTextX), Sum(y, m_nTextY));
    DrawVeil(target, Sum(x, m_nImageX), Sum(y, m_nImageY));
    // Also without a window, unlike other controls.
    Redraw(false);
}

void CLQMenuItemCtrl::DrawPicture(CLQSurfHandle& target, int x, int y) {
    if (HasThumbNail())
        DrawWhole(target, m_surfThumbNail, x, y);
    else if (m_nFrameCount > 0)
        target.BitBlt(CurrentFrame(), x, y, m_nShowWidth, m_nShowHeight, 0, 0);
}

CLQSurfHandle& CLQMenuItemCtrl::CurrentFrame() {
    const auto at = static_cast<std::size_t>(m_nFrame);
    if (at >= m_vecFrame.size())
        m_vecFrame.resize(at + 1);
    std::shared_ptr<CLQSurfHandle>& frame = m_vecFrame[at];
    if (!frame) {
        wchar_t name[korvane::kFrameNameLength];
        korvane::FormatFrameName(m_strFramePattern.c_str(), m_nFrame + 1, m_nFrame, name);
        frame = std::make_shared<CLQSurfHandle>(LoadOwnImage(name));
    }
    return *frame;
}

void CLQMenuItemCtrl::DrawBorder(CLQSurfHandle& target, int x, int y) {
    const int first = IsCursorState() && IsFocus() ? eBorder_FocusLeft : eBorder_Left;
    for (int i = first; i < first + kPiecesPerLook; ++i) {
        BorderPiece& piece = m_arrBorder[static_cast<std::size_t>(i)];
        DrawWhole(target, piece.image, Sum(x, piece.x), Sum(y, piece.y));
    }
}

void CLQMenuItemCtrl::DrawCaption(CLQSurfHandle& target, int x, int y) {
    DrawCentred(target, m_surfTextShader, x, y);
    if (m_bCurSource && !m_bDesable)
        DrawCentred(target, m_surfCurSource, x, y);
    if (!m_pTextElement) {
        DrawCentred(target, m_bDesable ? m_surfDesableText : m_surfText, x, y);
        return;
    }
    // Tiles that share an element each show it on themselves. It stays with the tile that bound it, and comes
    // to this one when that is gone.
    CLQBaseCtrl* const father = m_pTextElement->GetFatherCtrl();
    m_pTextElement->SetFatherCtrl(this);
    m_pTextElement->Draw(target, m_bDesable ? eImage_Disabled : eImage_Normal);
    if (father)
        m_pTextElement->SetFatherCtrl(father);
}

void CLQMenuItemCtrl::DrawCentred(CLQSurfHandle& target, CLQSurfHandle& image, int x, int y) {
    DrawWhole(target, image, Sum(x, -(image.GetWidth() / 2)), Sum(y, -(image.GetHeight() / 2)));
}

void CLQMenuItemCtrl::DrawVeil(CLQSurfHandle& target, int x, int y) {
    CLQSurfHandle* veil = nullptr;
    if (m_bRectAsh)
        veil = &m_surfRectAsh;
    else if (m_nPress == 1 && !m_bDesable)
        veil = &m_surfPressedShader;
    if (!veil)
        return;
    const int width = Saturated(std::int64_t{m_nWidth} - m_nImageX);
    const int height = Saturated(std::int64_t{m_nHeight} - m_nImageY);
    target.BitBlt(*veil, x, y, width, height, 0, 0);
}
