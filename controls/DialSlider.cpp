#include "controls/DialSlider.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>

#include "controls/parts/DialSliderLayout.h"
#include "controls/parts/Hundredths.h"
#include "controls/parts/InvalidIndex.h"
#include "controls/parts/Saturated.h"
#include "controls/parts/SharedImage.h"
#include "engine/core/Rect.h"
#include "engine/text/FontManager.h"

namespace layout = korvane::dial_slider;

using korvane::Saturated;

namespace {

_LQColor Black() {
    return {0, 0, 0, 255};
}

_LQColor White() {
    return {255, 255, 255, 255};
}

/// Room for the text of a label and of a preset's number, each with its end.
constexpr int kLabelLength = 10;
constexpr int kNumberLength = 4;

/// Room for every float with one decimal.
constexpr int kDigits = 64;

/// What std::to_chars wrote from `digits` to `end`, as far as there is room for it.
template <std::size_t kLength>
void Widen(const char* digits, const char* end, wchar_t (&text)[kLength]) {
    const auto length = std::min<std::size_t>(static_cast<std::size_t>(end - digits), kLength - 1);
    std::copy_n(digits, length, text);
    text[length] = L'\0';
}

void FormatFrequency(float value, bool decimal, wchar_t (&text)[kLabelLength]) {
    char digits[kDigits];
    const std::to_chars_result result =
        decimal
            ? std::to_chars(digits, digits + kDigits, static_cast<double>(value), std::chars_format::fixed, 1)
            : std::to_chars(digits, digits + kDigits, korvane::TruncateToInt(value));
    Widen(digits, result.ptr, text);
}

void FormatNumber(int number, wchar_t (&text)[kNumberLength]) {
    char digits[kDigits];
    Widen(digits, std::to_chars(digits, digits + kDigits, number).ptr, text);
}

/// Steps beyond this many are outside every control; fewer stay within int when they become pixels.
int LimitSteps(std::int64_t steps) {
    return static_cast<int>(std::clamp<std::int64_t>(steps, -korvane::kMaxExtent, korvane::kMaxExtent));
}

/// A preset's frequency in hundredths, without a guard.
int PresetKey(float value) {
    return korvane::TruncateToInt(value * 100.0f);
}

}  // namespace

CLQDialSlider::CLQDialSlider() : m_pFont(CLQFontManager::GetInstance()->GetDefaultFont()) {
    m_nKind = korvane::kKindDialSlider;
}

CLQDialSlider::CLQDialSlider(const CLQDialSlider& other) = default;

CLQDialSlider& CLQDialSlider::operator=(const CLQDialSlider& other) = default;

CLQDialSlider::~CLQDialSlider() = default;

bool CLQDialSlider::Create(int x, int y, int width, int height) {
    if (!CLQBaseCtrl::Create(x, y, width, height))
        return false;
    m_nTickCount = layout::TickCount(height);
    m_nHalfSpan = layout::HalfSpan(height);
    return true;
}

bool CLQDialSlider::SetBKgnd(const wchar_t* file) {
    SetImage(m_pBkgnd, file);
    return true;
}

bool CLQDialSlider::SetPointgnd(const wchar_t* file) {
    SetImage(m_pPointgnd, file);
    return true;
}

bool CLQDialSlider::SetIcongnd(const wchar_t* file) {
    SetImage(m_pIcongnd, file);
    return true;
}

bool CLQDialSlider::SetShadowGnd(const wchar_t* file) {
    SetImage(m_pShadowGnd, file);
    // Unlike the other three, and meant.
    return false;
}

void CLQDialSlider::SetImage(std::shared_ptr<CLQSurfHandle>& image, const wchar_t* file) {
    if (image)
        return;
    image = korvane::LoadSharedImage(file);
    Invalidate();
}

void CLQDialSlider::SetFont(CLQFont* font) {
    m_pFont = font;
    Invalidate();
}

void CLQDialSlider::SetFontSize(int width, int height) {
    m_nFontWidth = width;
    m_nFontHeight = height;
    Invalidate();
}

void CLQDialSlider::SetScal(float scale) {
    m_fScale = scale;
    Invalidate();
}

void CLQDialSlider::SetDec(bool decimal) {
    m_bDecimal = decimal;
    Invalidate();
}

void CLQDialSlider::SetBoundScalFreqID(_FreqStruct_ bounds) {
    m_fMinimum = bounds.minimum;
    m_fMaximum = bounds.maximum;
    m_bDecimal = bounds.decimal;
    m_fScale = bounds.scale;
    Invalidate();
}

void CLQDialSlider::SetVaule(float value) {
    if (value == m_fValue)
        return;
    m_fValue = value;
    Invalidate();
}

int CLQDialSlider::IsBound(float value) {
    if (value < m_fMinimum)
        return kBelowBounds;
    return value > m_fMaximum ? kAboveBounds : kWithinBounds;
}

int CLQDialSlider::IsInRect(int x, int y) {
    for (int i = 0; i < kTouchablePresets; ++i) {
        const _LQRect& rect = m_arrHitRect[i];
        if (rect.left < x && x < rect.right && rect.top < y && y < rect.bottom)
            return i;
    }
    return kNoPreset;
}

int CLQDialSlider::GetIntNum(float value) {
    return korvane::IntegerPart(value);
}

int CLQDialSlider::GetDocNum(float value) {
    return korvane::HundredthsPart(value);
}

void CLQDialSlider::AddShortcut(float value) {
    m_vecShortcut.push_back(value);
    Invalidate();
}

void CLQDialSlider::SetShortCut(int index, float value) {
    ShortcutAt(index, "CLQDialSlider::SetShortCut") = value;
    Invalidate();
}

void CLQDialSlider::DeleteShortcut(float value) {
    const auto found = std::find_if(m_vecShortcut.begin(), m_vecShortcut.end(),
                                    [value](float preset) { return PresetKey(preset) == PresetKey(value); });
    if (found == m_vecShortcut.end())
        return;
    m_vecShortcut.erase(found);
    Invalidate();
}

void CLQDialSlider::DeleteAllCut() {
    m_vecShortcut.clear();
    Invalidate();
}

float& CLQDialSlider::ShortcutAt(int index, const char* operation) {
    const auto at = static_cast<std::size_t>(index);
    if (index < 0 || at >= m_vecShortcut.size())
        korvane::FailInvalidIndex(operation, index, m_vecShortcut.size());
    return m_vecShortcut[at];
}

std::wstring CLQDialSlider::FormatStr(float value) const {
    wchar_t text[kLabelLength];
    FormatFrequency(value, m_bDecimal, text);
    return text;
}

bool CLQDialSlider::DoMessage(_LQMessage* msg) {
    if (!msg)
        return false;
    switch (msg->code) {
        case korvane::kMsgPress:
            if (!CheckPoint(msg->x, msg->y))
                return false;
            m_nPress = 1;
            m_fPressValue = m_fValue;
            m_nPressY = msg->y;
            return true;
        case korvane::kMsgMove:
            return DoMove(*msg);
        case korvane::kMsgRelease:
            DoRelease(*msg);
            // Consumed also without a press, as by the number wheel.
            return true;
        default:
            return false;
    }
}

bool CLQDialSlider::DoMove(const _LQMessage& msg) {
    if (!CheckPoint(msg.x, msg.y) || m_nPress != 1)
        return false;
    const int steps = layout::DragSteps(std::int64_t{m_nPressY} - msg.y);
    if (steps == 0 || !HasValue())
        return true;
    SetVaule(Clamped(static_cast<float>(steps) * m_fScale + m_fPressValue));
    FireEvent(korvane::kEventValueChanged, &m_fValue);
    return true;
}

float CLQDialSlider::Clamped(float value) const {
    if (value < m_fMinimum)
        return m_fMinimum;
    return value > m_fMaximum ? m_fMaximum : value;
}

/// The press lasts until the handlers have run.
void CLQDialSlider::DoRelease(const _LQMessage& msg) {
    if (m_nPress != 1)
        return;
    const int preset = PresetAt(msg);
    m_nPressY = msg.y;
    if (preset != kNoPreset) {
        if (!FireEvent(korvane::kEventItemChosen, preset))
            return;
        SetVaule(ShortcutAt(preset, "CLQDialSlider::DoMessage"));
    } else if (!FireEvent(korvane::kEventReleased)) {
        return;
    }
    m_nPress = 0;
}

int CLQDialSlider::PresetAt(const _LQMessage& msg) {
    int left = 0;
    int top = 0;
    GetScreenXY(left, top);
    return IsInRect(Saturated(std::int64_t{msg.x} - left), Saturated(std::int64_t{msg.y} - top));
}

bool CLQDialSlider::HasStep() const {
    return m_bDecimal ? korvane::HundredthsPart(m_fScale) != 0 : m_fScale != 0.0f;
}

int CLQDialSlider::StepsAboveMinimum() const {
    if (!HasStep())
        return 0;
    const float distance = m_fValue - m_fMinimum;
    if (!m_bDecimal)
        return korvane::TruncateToInt(distance / m_fScale);
    // The 1 makes up for a distance that came out a hundredth short.
    const std::int64_t hundredths = std::int64_t{korvane::InHundredths(distance)} + 1;
    return Saturated(hundredths / korvane::HundredthsPart(m_fScale));
}

int CLQDialSlider::StepsAbove(float preset) const {
    const float distance = m_fValue - preset;
    if (!m_bDecimal)
        return LimitSteps(korvane::TruncateToInt(distance / m_fScale));
    std::int64_t hundredths = korvane::InHundredths(distance);
    hundredths += hundredths < 0 ? -1 : 1;
    return LimitSteps(hundredths / korvane::HundredthsPart(m_fScale));
}

void CLQDialSlider::Draw(CLQSurfHandle& target) {
    if (m_pOwnerWnd && !IsNeedRedraw())
        return;
    int left = 0;
    int top = 0;
    GetScreenXY(left, top);
    if (m_pFont)
        m_pFont->SetFontSize(m_nFontWidth, m_nFontHeight);

    korvane::BlitWhole(target, m_pBkgnd, left, top);
    _LQColor black = Black();
    const int line = left + m_nWidth / 2 - layout::kLineLeftOfMiddle;
    target.FillRect(line, top, line + layout::kLineWidth, top + m_nHeight, black, false);
    DrawTicks(target, left, top);
    DrawPresets(target, left, top);
    korvane::BlitWhole(target, m_pPointgnd, left,
                       top + layout::Middle(m_nHeight) + layout::kPointerBelowMiddle);
    if (m_pShadowGnd)
        target.BitBlt(*m_pShadowGnd, left, top, m_pShadowGnd->GetWidth(), m_nHeight, 0, 0);
    if (m_pOwnerWnd)
        Redraw(false);
}

void CLQDialSlider::DrawTicks(CLQSurfHandle& target, int left, int top) {
    _LQColor black = Black();
    // The first row's step from the minimum, as far as ticks differ by it: they repeat after ten.
    const int firstStep = StepsAboveMinimum() % 10 - m_nHalfSpan % 10;
    for (int row = 0; row < m_nTickCount; ++row) {
        const int y = top + layout::kRowPitch * row;
        const layout::Tick tick = layout::TickOf(firstStep + row);
        target.FillRect(left + tick.left, y, left + tick.right, y + layout::kTickHeight, black, false);
        if (tick.isLabelled) {
            const float frequency = m_fValue - static_cast<float>(m_nHalfSpan - row) * m_fScale;
            DrawLabel(target, frequency, left, y);
        }
    }
}

/// Labels reach one step beyond the bounds, the ticks go on.
void CLQDialSlider::DrawLabel(CLQSurfHandle& target, float frequency, int left, int tickTop) {
    if (!(frequency <= m_fScale + m_fMaximum && frequency >= m_fMinimum - m_fScale))
        return;
    wchar_t text[kLabelLength];
    FormatFrequency(frequency, m_bDecimal, text);
    _LQColor white = White();
    target.DrawTextW(text, m_pFont, left + m_nWidth / 2, tickTop - layout::kLabelAboveTick, eText_Left, white,
                     nullptr, 0);
}

void CLQDialSlider::DrawPresets(CLQSurfHandle& target, int left, int top) {
    if (!HasStep())
        return;
    const float reach = static_cast<float>(m_nHalfSpan) * m_fScale;
    const float low = m_fValue - reach;
    const float high = m_fValue + reach;
    int index = 0;
    for (const float preset : m_vecShortcut) {
        if (low < preset && preset < high) {
            const int y = layout::Middle(m_nHeight) - layout::kRowPitch * StepsAbove(preset);
            DrawPreset(target, index, left, top, y);
        }
        ++index;
    }
}

void CLQDialSlider::DrawPreset(CLQSurfHandle& target, int index, int left, int top, int y) {
    korvane::BlitWhole(target, m_pIcongnd, left, top + y);
    wchar_t text[kNumberLength];
    FormatNumber(index + 1, text);
    _LQColor black = Black();
    target.DrawTextW(text, m_pFont, left + layout::kPresetNumberLeft, top + y, eText_Left, black, nullptr, 0);

    // Painting sets what touch reads, and a preset that has left the view keeps its rectangle: where it last
    // stood, a touch still chooses it.
    if (index < kTouchablePresets) {
        const int width = m_pIcongnd ? m_pIcongnd->GetWidth() : 0;
        const int height = m_pIcongnd ? m_pIcongnd->GetHeight() : 0;
        m_arrHitRect[index] = korvane::RectOfSize(0, y, width, height);
    }
}
