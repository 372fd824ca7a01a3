#include "engine/widgets/SliderCtrl.h"

#include <algorithm>

#include "engine/core/Message.h"
#include "engine/widgets/layout/CtrlStorage.h"

namespace {

int ClampOffset(int offset) {
    return std::clamp(offset, -korvane::kMaxExtent, korvane::kMaxExtent);
}

}  // namespace

CLQSliderCtrl::CLQSliderCtrl() {
    m_nKind = korvane::kKindSlider;
}

CLQSliderCtrl::CLQSliderCtrl(const CLQSliderCtrl& other) = default;

CLQSliderCtrl& CLQSliderCtrl::operator=(const CLQSliderCtrl& other) = default;

CLQSliderCtrl::~CLQSliderCtrl() = default;

CLQBaseCtrl* CLQSliderCtrl::Clone() {
    return new CLQSliderCtrl(*this);
}

void CLQSliderCtrl::SetImage(korvane::NamedImage& image, const wchar_t* file) {
    if (image.SetFile(file))
        Invalidate();
}

void CLQSliderCtrl::SetBkgSurf(const wchar_t* file) {
    SetImage(m_imageBkg, file);
}

void CLQSliderCtrl::SetFillSurf(const wchar_t* file) {
    SetImage(m_imageFill, file);
}

void CLQSliderCtrl::SetThumbSurf(const wchar_t* file) {
    SetImage(m_imageThumb, file);
}

void CLQSliderCtrl::SetThumbPressedSurf(const wchar_t* file) {
    SetImage(m_imageThumbPressed, file);
}

void CLQSliderCtrl::SetRange(int minimum, int maximum) {
    m_nMin = minimum;
    m_nMax = std::max(minimum, maximum);
    m_nValue = std::clamp(m_nValue, m_nMin, m_nMax);
    Invalidate();
}

void CLQSliderCtrl::GetRange(int& minimum, int& maximum) const {
    minimum = m_nMin;
    maximum = m_nMax;
}

void CLQSliderCtrl::SetValue(int value) {
    value = std::clamp(value, m_nMin, m_nMax);
    if (value == m_nValue)
        return;
    const int before = GetThumbPos();
    m_nValue = value;
    InvalidateThumbWay(before, GetThumbPos());
}

/// Whatever a value moves, the thumb in either look and the end of the fill below its middle, lies there.
void CLQSliderCtrl::InvalidateThumbWay(int from, int to) {
    const int length = std::max(ThumbLength(), LengthAlongTrack(m_imageThumbPressed.Surface()));
    const int start = m_nTrackOffset + std::min(from, to);
    const int end = m_nTrackOffset + std::max(from, to) + length;
    _LQRect way = GetScreenRect();
    if (m_bVertical) {
        way.bottom = way.top + m_nTopInset + end;
        way.top += m_nTopInset + start;
    } else {
        way.right = way.left + m_nLeftInset + end;
        way.left += m_nLeftInset + start;
    }
    InvalidatePart(way);
}

int CLQSliderCtrl::GetValue() const {
    return m_nValue;
}

void CLQSliderCtrl::SetInset(int left, int top) {
    m_nLeftInset = ClampOffset(left);
    m_nTopInset = ClampOffset(top);
    Invalidate();
}

void CLQSliderCtrl::SetTrackOffset(int offset) {
    m_nTrackOffset = ClampOffset(offset);
    Invalidate();
}

void CLQSliderCtrl::SetThumbOffset(int offset) {
    m_nThumbOffset = ClampOffset(offset);
    Invalidate();
}

void CLQSliderCtrl::SetVertical(bool vertical) {
    m_bVertical = vertical;
    Invalidate();
}

int CLQSliderCtrl::LengthAlongTrack(CLQSurfHandle& image) const {
    return m_bVertical ? image.GetHeight() : image.GetWidth();
}

int CLQSliderCtrl::ThumbLength() {
    return LengthAlongTrack(m_imageThumb.Surface());
}

int CLQSliderCtrl::MaxThumbPos() {
    const int length = m_bVertical ? m_nHeight - m_nTopInset : m_nWidth - m_nLeftInset;
    return std::max(0, length - 2 * m_nTrackOffset - ThumbLength());
}

int CLQSliderCtrl::CalcPosFromValue(int value) {
    const long long range = static_cast<long long>(m_nMax) - m_nMin;
    if (range == 0)
        return 0;
    const long long above = static_cast<long long>(std::clamp(value, m_nMin, m_nMax)) - m_nMin;
    return static_cast<int>((above * MaxThumbPos() + range / 2) / range);
}

int CLQSliderCtrl::GetThumbPos() {
    return CalcPosFromValue(m_nValue);
}

/// The value at which the thumb's middle lies nearest the point.
int CLQSliderCtrl::ValueAt(int x, int y) {
    const long long maxPos = MaxThumbPos();
    if (maxPos == 0)
        return m_nValue;
    int left = 0;
    int top = 0;
    GetScreenXY(left, top);
    const long long along = m_bVertical ? static_cast<long long>(y) - top - m_nTopInset
                                        : static_cast<long long>(x) - left - m_nLeftInset;
    const long long pos = std::clamp<long long>(along - m_nTrackOffset - ThumbLength() / 2, 0, maxPos);
    const long long range = static_cast<long long>(m_nMax) - m_nMin;
    return static_cast<int>(m_nMin + (pos * range + maxPos / 2) / maxPos);
}

/// The handler may destroy the slider: the caller returns at once.
void CLQSliderCtrl::FollowFinger(const _LQMessage& msg) {
    const int value = ValueAt(msg.x, msg.y);
    if (value == m_nValue)
        return;
    SetValue(value);
    FireEvent(korvane::kEventValueChanged, &m_nValue);
}

bool CLQSliderCtrl::DoMessage(_LQMessage* msg) {
    if (!msg)
        return false;
    switch (msg->code) {
        case korvane::kMsgPress:
            if (!m_bEnabled || !CheckPoint(msg->x, msg->y))
                return false;
            m_nPress = 1;
            Invalidate();
            FollowFinger(*msg);
            return true;
        case korvane::kMsgMove:
            if (m_nPress != 1)
                return false;
            FollowFinger(*msg);
            return true;
        case korvane::kMsgRelease:
            if (m_nPress != 1)
                return false;
            m_nPress = 0;
            Invalidate();
            return true;
        default:
            return false;
    }
}

void CLQSliderCtrl::LoadImages() {
    for (korvane::NamedImage* image : {&m_imageBkg, &m_imageFill, &m_imageThumb, &m_imageThumbPressed})
        image->Surface();
}

void CLQSliderCtrl::DrawBackground(CLQSurfHandle& target) {
    int x = 0;
    int y = 0;
    GetScreenXY(x, y);
    target.BitBlt(m_imageBkg.Surface(), x + m_nLeftInset, y + m_nTopInset, m_nWidth - m_nLeftInset,
                  m_nHeight - m_nTopInset, 0, 0);
}

void CLQSliderCtrl::DrawFill(CLQSurfHandle& target) {
    int x = 0;
    int y = 0;
    GetScreenXY(x, y);
    int width = m_nWidth - m_nLeftInset;
    int height = m_nHeight - m_nTopInset;
    const int middle = ThumbLength() / 2;
    int& length = m_bVertical ? height : width;
    length = std::min(length + middle, GetThumbPos() + middle + m_nTrackOffset);
    target.BitBlt(m_imageFill.Surface(), x + m_nLeftInset, y + m_nTopInset, width, height, 0, 0);
}

void CLQSliderCtrl::DrawThumb(CLQSurfHandle& target) {
    const bool pressed = m_nPress == 1 && m_imageThumbPressed.Surface().GetSurface();
    CLQSurfHandle& thumb = pressed ? m_imageThumbPressed.Surface() : m_imageThumb.Surface();
    int x = 0;
    int y = 0;
    GetScreenXY(x, y);
    const int along = GetThumbPos() + m_nTrackOffset + (m_bVertical ? m_nTopInset : m_nLeftInset);
    const int dx = m_bVertical ? m_nThumbOffset : along;
    const int dy = m_bVertical ? along : m_nThumbOffset;
    target.BitBlt(thumb, x + dx, y + dy, m_nWidth - dx, m_nHeight - dy, 0, 0);
}

void CLQSliderCtrl::Draw(CLQSurfHandle& target) {
    if (m_pOwnerWnd && !IsNeedRedraw())
        return;
    LoadImages();
    DrawBackground(target);
    DrawFill(target);
    DrawThumb(target);
    if (m_pOwnerWnd)
        Redraw(false);
}

void CLQSliderCtrl::ExchangeLayout(korvane::LayoutArchive& archive) {
    CLQBaseCtrl::ExchangeLayout(archive);
    archive.Text(L"background", m_imageBkg.File(),
                 [this](const std::wstring& file) { SetBkgSurf(file.c_str()); });
    archive.Text(L"fill", m_imageFill.File(),
                 [this](const std::wstring& file) { SetFillSurf(file.c_str()); });
    archive.Text(L"thumb", m_imageThumb.File(),
                 [this](const std::wstring& file) { SetThumbSurf(file.c_str()); });
    archive.Text(L"thumbpressed", m_imageThumbPressed.File(),
                 [this](const std::wstring& file) { SetThumbPressedSurf(file.c_str()); });
    int minimum = m_nMin;
    int maximum = m_nMax;
    archive.Number(L"minimum", m_nMin, [&minimum](int value) { minimum = value; });
    archive.Number(L"maximum", m_nMax, [&maximum](int value) { maximum = value; });
    if (archive.IsLoading())
        SetRange(minimum, maximum);
    archive.Number(L"value", m_nValue, [this](int value) { SetValue(value); });
    archive.Number(L"leftinset", m_nLeftInset, [this](int left) { SetInset(left, m_nTopInset); });
    archive.Number(L"topinset", m_nTopInset, [this](int top) { SetInset(m_nLeftInset, top); });
    archive.Number(L"trackoffset", m_nTrackOffset, [this](int offset) { SetTrackOffset(offset); });
    archive.Number(L"thumboffset", m_nThumbOffset, [this](int offset) { SetThumbOffset(offset); });
    archive.Flag(L"vertical", m_bVertical, [this](bool vertical) { SetVertical(vertical); });
}

bool CLQSliderCtrl::LoadCtrlFromIni(CLQIniReadWrite& ini, const wchar_t* section) {
    return korvane::LoadFromIni(ini, section, m_nKind, [this](auto& archive) { ExchangeLayout(archive); });
}

bool CLQSliderCtrl::LoadCtrlFromBin(CLQMemBlob& blob, int index) {
    return korvane::LoadFromBlob(blob, index, m_nKind, [this](auto& archive) { ExchangeLayout(archive); });
}

bool CLQSliderCtrl::SaveCtrlToIni(CLQIniReadWrite& ini, const wchar_t* section) {
    return korvane::SaveToIni(ini, section, m_nKind, [this](auto& archive) { ExchangeLayout(archive); });
}

bool CLQSliderCtrl::SaveCtrlToBin(CLQMemBlob& blob, int index) {
    return korvane::SaveToBlob(blob, index, m_nKind, [this](auto& archive) { ExchangeLayout(archive); });
}
