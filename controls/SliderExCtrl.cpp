#include "controls/SliderExCtrl.h"

#include <algorithm>
#include <cstdint>

#include "controls/parts/Saturated.h"
#include "engine/draw/SurfManager.h"

namespace {

/// A null name changes nothing.
void LoadNamed(const wchar_t* file, std::wstring& name, CLQSurfHandle& image) {
    if (!file)
        return;
    name = file;
    image = CLQSurfManager::GetInstance()->CreateSurface(name.c_str(), true);
}

}  // namespace

CLQSliderExCtrl::CLQSliderExCtrl() {
    m_nKind = korvane::kKindSliderEx;
}

CLQSliderExCtrl::CLQSliderExCtrl(const CLQSliderExCtrl& other) = default;

CLQSliderExCtrl& CLQSliderExCtrl::operator=(const CLQSliderExCtrl& other) = default;

CLQSliderExCtrl::~CLQSliderExCtrl() = default;

void CLQSliderExCtrl::SetReapetIconOffset(int y) {
    m_nReapetIconOffset = y;
    Invalidate();
}

void CLQSliderExCtrl::SetReapetA(int value) {
    m_nReapetA = value;
    m_nReapetAPos = CalcPosFromValue(value);
}

void CLQSliderExCtrl::SetReapetB(int value) {
    m_nReapetB = value;
    m_nReapetBPos = CalcPosFromValue(value);
}

void CLQSliderExCtrl::EnableReapetAIcon(int value) {
    m_bReapetAShow = true;
    // Not compared with B, so that A may come to lie beyond it.
    SetReapetA(std::clamp(value, m_nMin, m_nMax));
    Invalidate();
}

void CLQSliderExCtrl::EnableReapetBIcon(int value) {
    if (!m_bReapetAShow)
        return;
    m_bReapetBShow = true;
    value = std::clamp(value, m_nMin, m_nMax);
    if (value < m_nReapetA) {
        const int end = m_nReapetA;
        SetReapetA(value);
        SetReapetB(end);
    } else {
        SetReapetB(value);
    }
    Invalidate();
}

void CLQSliderExCtrl::CancelReapetPlay() {
    m_bReapetAShow = false;
    m_bReapetBShow = false;
    Invalidate();
}

bool CLQSliderExCtrl::IsReapetABShow() {
    return m_bReapetAShow && m_bReapetBShow;
}

void CLQSliderExCtrl::SetReapetBkgSurf(const wchar_t* file) {
    LoadNamed(file, m_strReapetBkg, m_surfReapetBkg);
}

void CLQSliderExCtrl::SetReapetBkgActiveSurf(const wchar_t* file) {
    // The name goes one way and the image the other: the band has one image, whichever setter came last.
    LoadNamed(file, m_strReapetBkgActive, m_surfReapetBkg);
}

void CLQSliderExCtrl::SetReapetASurf(const wchar_t* file) {
    LoadNamed(file, m_strReapetA, m_surfReapetA);
}

void CLQSliderExCtrl::SetReapetBSurf(const wchar_t* file) {
    LoadNamed(file, m_strReapetB, m_surfReapetB);
}

void CLQSliderExCtrl::DrawReapetBand(CLQSurfHandle& target) {
    int x = 0;
    int y = 0;
    GetScreenXY(x, y);
    // The image lies along the whole slider, and the passage is cut out of it.
    const int start = m_nTrackOffset + m_nReapetAPos;
    const int left = x + m_nLeftInset + start;
    const int top = y + m_nTopInset;
    const int height = m_nHeight - m_nTopInset;

    const int end = std::min(m_nReapetBPos + m_nTrackOffset, m_nWidth);
    target.BitBlt(m_surfReapetBkg, left, top, end - start, height, start, 0);

    const int thumb = GetThumbPos();
    if (thumb <= m_nReapetAPos)
        return;
    const int played = std::min(thumb + m_nTrackOffset, m_nWidth) - start;
    target.BitBlt(m_surfReapetBkgActive, left, top, std::min(played, m_nReapetBPos - m_nReapetAPos), height,
                  start, 0);
}

void CLQSliderExCtrl::DrawReapetIcon(CLQSurfHandle& target, CLQSurfHandle& icon, int pos) {
    int x = 0;
    int y = 0;
    GetScreenXY(x, y);
    x += m_nLeftInset + m_nTrackOffset + pos - icon.GetWidth() / 2;
    // Row and column are the screen's, also where they are taken from the slider's size.
    y = m_nReapetIconOffset;
    target.BitBlt(icon, x, y, m_nWidth - x, korvane::Saturated(std::int64_t{m_nHeight} - y), 0, 0);
}

void CLQSliderExCtrl::Draw(CLQSurfHandle& target) {
    if (m_pOwnerWnd && !IsNeedRedraw())
        return;
    LoadImages();
    DrawBackground(target);
    if (!m_bVertical) {
        if (IsReapetABShow())
            DrawReapetBand(target);
        if (m_bReapetAShow)
            DrawReapetIcon(target, m_surfReapetA, m_nReapetAPos);
        if (m_bReapetBShow)
            DrawReapetIcon(target, m_surfReapetB, m_nReapetBPos);
    }
    DrawFill(target);
    DrawThumb(target);
    if (m_pOwnerWnd)
        Redraw(false);
}
