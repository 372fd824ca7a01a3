#include "engine/widgets/Static.h"

#include <algorithm>

#include "engine/text/LangManager.h"
#include "engine/widgets/layout/CtrlStorage.h"

CLQStatic::CLQStatic() {
    m_nKind = korvane::kKindStatic;
    m_timerScroll.SetCallBack(this, &CLQStatic::OnTimerScroll);
}

CLQStatic::CLQStatic(const CLQStatic& other)
    : CLQBaseCtrl(other),
      m_line(other.m_line),
      m_scroll(other.m_scroll),
      m_colorText(other.m_colorText),
      m_imageBkg(other.m_imageBkg) {
    m_scroll.Restart();
    m_timerScroll.SetCallBack(this, &CLQStatic::OnTimerScroll);
}

CLQStatic& CLQStatic::operator=(const CLQStatic& other) {
    if (this == &other)
        return *this;
    CLQBaseCtrl::operator=(other);
    m_line = other.m_line;
    m_scroll = other.m_scroll;
    m_colorText = other.m_colorText;
    m_imageBkg = other.m_imageBkg;
    RestartScroll();
    return *this;
}

CLQStatic::~CLQStatic() = default;

CLQBaseCtrl* CLQStatic::Clone() {
    return new CLQStatic(*this);
}

void CLQStatic::SetText(const wchar_t* text) {
    if (m_line.SetText(text))
        RestartScroll();
}

std::wstring& CLQStatic::GetText() {
    return m_line.Text();
}

void CLQStatic::SetLangID(int id) {
    CLQBaseCtrl::SetLangID(id);
    if (id != 0)
        SetText(CLQLangManager::GetInstance()->GetString(id).c_str());
}

void CLQStatic::ChangeLanguage() {
    CLQBaseCtrl::ChangeLanguage();
    if (m_nLangID != 0)
        SetText(CLQLangManager::GetInstance()->GetString(m_nLangID).c_str());
}

void CLQStatic::SetBkgSurf(const wchar_t* file) {
    if (m_imageBkg.SetFile(file))
        Invalidate();
}

void CLQStatic::SetBkgSurf(CLQSurfHandle& image) {
    m_imageBkg.SetSurface(image);
    Invalidate();
}

void CLQStatic::SetFont(CLQFont* font) {
    if (m_line.SetFont(font))
        RestartScroll();
}

void CLQStatic::SetFontName(const wchar_t* face) {
    if (m_line.SetFontName(face))
        RestartScroll();
}

void CLQStatic::SetFontSize(int width, int height) {
    if (m_line.SetFontSize(width, height))
        RestartScroll();
}

void CLQStatic::SetTextColor(_LQColor& color) {
    m_colorText = color;
    Invalidate();
}

void CLQStatic::SetTextStyle(int style) {
    if (m_line.SetStyle(style))
        Invalidate();
}

void CLQStatic::EnableTextScroll(bool enable) {
    if (enable == m_scroll.enabled)
        return;
    m_scroll.enabled = enable;
    // A text at rest looks the same either way; all it may need is its timer.
    if (m_scroll.scrolled != 0)
        Invalidate();
    m_timerScroll.StopTimer();
    m_scroll.Restart();
    if (enable && !IsNeedRedraw())
        KeepScrolling(m_line.Measure().width);
}

void CLQStatic::EnableScrollTextTooLong(bool enable) {
    if (enable == m_scroll.onlyTooLong)
        return;
    m_scroll.onlyTooLong = enable;
    RestartScroll();
}

void CLQStatic::SetScrollParam(int pixels, int period) {
    pixels = std::max(pixels, 1);
    period = std::max(period, 1);
    if (pixels == m_scroll.step && period == m_scroll.period)
        return;
    m_scroll.step = pixels;
    m_scroll.period = period;
    RestartScroll();
}

void CLQStatic::SetScrollType(eScrollType type) {
    const bool known = type == eScroll_None || type == eScroll_Right || type == eScroll_Left;
    if (!known || type == m_scroll.type)
        return;
    m_scroll.type = type;
    RestartScroll();
}

void CLQStatic::SetTextScrollNum(int passes) {
    if (passes == m_scroll.count)
        return;
    m_scroll.count = passes;
    RestartScroll();
}

void CLQStatic::RestartScroll() {
    m_timerScroll.StopTimer();
    m_scroll.Restart();
    Invalidate();
}

bool CLQStatic::IsScrollWanted(int textWidth) {
    return m_pOwnerWnd && m_nHeight > 0 && m_scroll.IsWanted(textWidth, m_nWidth) && IsOwnerShow();
}

/// The timer is started where the label is seen: nothing tells a label that one of its owners is shown or
/// hidden, but whatever becomes visible is drawn.
void CLQStatic::KeepScrolling(int textWidth) {
    if (!IsScrollWanted(textWidth) || m_timerScroll.IsActived())
        return;
    m_timerScroll.SetTimer(m_scroll.period);
    m_timerScroll.StartTimer();
}

void CLQStatic::OnTimerScroll(void*, int) {
    const int textWidth = m_line.Measure().width;
    if (IsScrollWanted(textWidth)) {
        m_scroll.Advance(textWidth, m_nWidth);
        Invalidate();
    }
    if (!IsScrollWanted(textWidth))
        m_timerScroll.StopTimer();
}

void CLQStatic::Draw(CLQSurfHandle& target) {
    if (m_pOwnerWnd && !IsNeedRedraw())
        return;
    const _LQRect area = GetScreenRect();
    target.BitBlt(m_imageBkg.Surface(), area.left, area.top, m_nWidth, m_nHeight, 0, 0);

    const korvane::TextExtent extent = m_line.Measure();
    int x = 0;
    int y = 0;
    korvane::PlaceText(area, extent, m_line.Style(), x, y);
    const int shift = m_scroll.scrolled == 0 ? 0 : m_scroll.Shift(x - area.left, extent.width, m_nWidth);
    m_line.Draw(target, area, extent, shift, m_colorText);
    KeepScrolling(extent.width);
    if (m_pOwnerWnd)
        Redraw(false);
}

void CLQStatic::ExchangeLayout(korvane::LayoutArchive& archive) {
    CLQBaseCtrl::ExchangeLayout(archive);
    // A text from the language table is not part of the layout.
    archive.Text(L"text", m_nLangID == 0 ? m_line.Text() : std::wstring(), [this](const std::wstring& text) {
        if (m_nLangID == 0)
            SetText(text.c_str());
    });
    m_line.ExchangeLooks(archive);
    archive.Color(L"color", m_colorText, [this](_LQColor color) { SetTextColor(color); });
    archive.Text(L"background", m_imageBkg.File(),
                 [this](const std::wstring& file) { SetBkgSurf(file.c_str()); });
    archive.Flag(L"scroll", m_scroll.enabled, [this](bool enable) { EnableTextScroll(enable); });
    archive.Flag(L"scrolltoolong", m_scroll.onlyTooLong,
                 [this](bool enable) { EnableScrollTextTooLong(enable); });
    archive.Number(L"scrolltype", m_scroll.type,
                   [this](int type) { SetScrollType(static_cast<eScrollType>(type)); });
    archive.Number(L"scrollstep", m_scroll.step, [this](int step) { SetScrollParam(step, m_scroll.period); });
    archive.Number(L"scrollperiod", m_scroll.period,
                   [this](int period) { SetScrollParam(m_scroll.step, period); });
    archive.Number(L"scrollcount", m_scroll.count, [this](int count) { SetTextScrollNum(count); });
}

bool CLQStatic::LoadCtrlFromIni(CLQIniReadWrite& ini, const wchar_t* section) {
    return korvane::LoadFromIni(ini, section, m_nKind, [this](auto& archive) { ExchangeLayout(archive); });
}

bool CLQStatic::LoadCtrlFromBin(CLQMemBlob& blob, int index) {
    return korvane::LoadFromBlob(blob, index, m_nKind, [this](auto& archive) { ExchangeLayout(archive); });
}

bool CLQStatic::SaveCtrlToIni(CLQIniReadWrite& ini, const wchar_t* section) {
    return korvane::SaveToIni(ini, section, m_nKind, [this](auto& archive) { ExchangeLayout(archive); });
}

bool CLQStatic::SaveCtrlToBin(CLQMemBlob& blob, int index) {
    return korvane::SaveToBlob(blob, index, m_nKind, [this](auto& archive) { ExchangeLayout(archive); });
}
