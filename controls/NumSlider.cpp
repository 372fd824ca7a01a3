#include "controls/NumSlider.h"

#include <cstdint>
#include <cstdlib>
#include <cwchar>

#include "controls/parts/Hundredths.h"
#include "controls/parts/NumSliderLayout.h"
#include "controls/parts/Saturated.h"
#include "controls/parts/SharedImage.h"
#include "engine/draw/SurfManager.h"
#include "engine/text/FontManager.h"

namespace wheel = korvane::num_slider;

using korvane::Saturated;

namespace {

/// Room for every int in decimal.
constexpr std::size_t kNumberLength = 16;

_LQColor White() {
    return {255, 255, 255, 255};
}

int HeightOf(const std::shared_ptr<CLQSurfHandle>& image) {
    return image ? image->GetHeight() : 0;
}

}  // namespace

CLQNumSlider::CLQNumSlider() {
    m_nKind = korvane::kKindNumSlider;
    m_timer.SetTimer(wheel::kTickPeriodMs);
    m_timer.SetCallBack(this, &CLQNumSlider::OnTime);
}

// The timer is copied as it stands: copies share its clockwork, which goes on ticking for the wheel that was
// copied. A copy is for showing; it rolls only when its OnTime is called.
CLQNumSlider::CLQNumSlider(const CLQNumSlider& other) = default;

CLQNumSlider& CLQNumSlider::operator=(const CLQNumSlider& other) = default;

CLQNumSlider::~CLQNumSlider() = default;

bool CLQNumSlider::Create(int x, int y, int width, int height) {
    SetShadowGnd();
    return CLQBaseCtrl::Create(x, y, width, height);
}

void CLQNumSlider::SetFont(CLQFont* font) {
    m_pFont = font;
    Invalidate();
}

void CLQNumSlider::SetFontSize(int width, int height) {
    m_nFontWidth = width;
    m_nFontHeight = height;
    ApplyFontSize();
    Invalidate();
}

void CLQNumSlider::SetScal(float scale) {
    m_fScale = scale;
    Invalidate();
}

void CLQNumSlider::SetDec(bool decimal) {
    m_bDecimal = decimal;
    Invalidate();
}

void CLQNumSlider::SetBoundScalFreqID(_FreqStruct_ bounds) {
    m_fMinimum = bounds.minimum;
    m_fMaximum = bounds.maximum;
    m_fScale = bounds.scale;
    m_bDecimal = bounds.decimal;
    SetCurrFreqID(bounds.freqID.c_str());
    m_fValue = 0.0f;
    SplitValue();
    Invalidate();
}

void CLQNumSlider::SetCurrFreqID(const wchar_t* text) {
    m_strFreqID = text ? text : L"";
    m_pLabel.reset();
    m_pLabel = std::make_shared<CLQSurfHandle>(CLQSurfManager::GetInstance()->CreateSurface(
        wheel::kLabelWidth, wheel::kLabelHeight, eSurface_ARGB4444, true));

    CLQFont* const font = CLQFontManager::GetInstance()->GetDefaultFont();
    font->SetFontSize(wheel::kLabelFontSize, wheel::kLabelFontSize);
    _LQColor white = White();
    m_pLabel->DrawTextW(m_strFreqID.c_str(), font, 0, 0, eText_Left, white, nullptr, 0);
    Invalidate();
}

void CLQNumSlider::SetVaule(float value) {
    switch (IsBound(value)) {
        case kBelowBounds:
            m_fValue = m_fMinimum;
            break;
        case kAboveBounds:
            m_fValue = m_fMaximum;
            break;
        default:
            m_fValue = value;
            break;
    }
    SplitValue();
    ResetOffsets();
    Invalidate();
}

int CLQNumSlider::IsBound(float value) {
    if (value < m_fMinimum)
        return kBelowBounds;
    return value > m_fMaximum ? kAboveBounds : kWithinBounds;
}

int CLQNumSlider::GetIntNum(float value) {
    return korvane::IntegerPart(value);
}

int CLQNumSlider::GetDocNum(float value) {
    return korvane::HundredthsPart(value);
}

void CLQNumSlider::SetShadowGnd() {
    m_pShadowUp.reset();
    m_pShadowDown.reset();
    m_pShadowUp = korvane::LoadSharedImage(L"NumberShadowUp.lqi");
    m_pShadowDown = korvane::LoadSharedImage(L"NumberShadowDown.lqi");
    Invalidate();
}

void CLQNumSlider::SetSeekUpGnd(const wchar_t* file) {
    m_pSeekUp.reset();
    m_pSeekUp = korvane::LoadSharedImage(file);
    Invalidate();
}

void CLQNumSlider::SetSeekDownGnd(const wchar_t* file) {
    m_pSeekDown.reset();
    m_pSeekDown = korvane::LoadSharedImage(file);
    Invalidate();
}

void CLQNumSlider::SetMoveUpCallBack(MoveCallBack callBack, void* context) {
    m_pfnMoveUp = callBack;
    m_pContext = context;
}

void CLQNumSlider::SetMoveDownCallBack(MoveCallBack callBack, void* context) {
    m_pfnMoveDown = callBack;
    m_pContext = context;
}

void CLQNumSlider::SetMoveStopCallBack(MoveCallBack callBack, void* context) {
    m_pfnMoveStop = callBack;
    m_pContext = context;
}

void CLQNumSlider::SlideMove(bool down) {
    m_bDown = down;
    CallBack(down ? m_pfnMoveDown : m_pfnMoveUp);
}

void CLQNumSlider::StartMove() {
    m_bMoving = true;
    m_nTickStep = m_bDown ? wheel::kTickPixels : -wheel::kTickPixels;
    SplitValue();
    ResetOffsets();
    m_timer.StartTimer();
    Invalidate();
}

void CLQNumSlider::MoveStop() {
    if (m_timer.IsActived())
        m_timer.StopTimer();
    m_bMoving = false;
    m_nTickStep = 0;
    Invalidate();
}

bool CLQNumSlider::IsMove() {
    return m_bMoving;
}

void CLQNumSlider::OnTime(void*, int) {
    if (m_bDecimal) {
        if (IntegerColumnRolls())
            m_nIntegerOffset += m_nTickStep;
        m_nDecimalOffset += m_nTickStep;
    } else {
        m_nIntegerOffset += m_nTickStep;
    }

    // Whole ticks reach the end of a step exactly; beyond it lies only a column that was left in mid-step
    // when the decimals were switched.
    if (std::abs(m_bDecimal ? m_nDecimalOffset : m_nIntegerOffset) >= wheel::kStepPixels) {
        StepValue();
        if (!FireEvent(korvane::kEventValueChanged, &m_fValue))
            return;
    }
    Invalidate();
}

bool CLQNumSlider::IntegerColumnRolls() const {
    const int step = korvane::HundredthsPart(m_fScale);
    // The 1 tolerates a fraction that came out a hundredth short.
    if (m_bDown)
        return korvane::HundredthsPart(m_fValue) + 1 < step;
    return korvane::HundredthsPart(m_fScale + m_fValue) < step;
}

void CLQNumSlider::StepValue() {
    m_fValue = m_bDown ? m_fValue - m_fScale : m_fScale + m_fValue;
    switch (IsBound(m_fValue)) {
        case kBelowBounds:
            m_fValue = m_fMaximum;
            break;
        case kAboveBounds:
            m_fValue = m_fMinimum;
            break;
        default:
            break;
    }
    ResetOffsets();
    m_nInteger = korvane::IntegerPart(m_fValue);
    if (m_bDecimal)
        m_nDecimal = korvane::HundredthsPart(m_fValue);
}

void CLQNumSlider::SplitValue() {
    if (m_bDecimal) {
        m_nInteger = korvane::IntegerPart(m_fValue);
        m_nDecimal = korvane::HundredthsPart(m_fValue);
    } else {
        m_nInteger = korvane::TruncateToInt(m_fValue);
    }
}

void CLQNumSlider::ResetOffsets() {
    m_nIntegerOffset = 0;
    m_nDecimalOffset = 0;
}

void CLQNumSlider::ApplyFontSize() {
    if (m_pFont)
        m_pFont->SetFontSize(m_nFontWidth, m_nFontHeight);
}

void CLQNumSlider::CallBack(MoveCallBack callBack) {
    if (callBack)
        callBack(m_pContext, this);
}

bool CLQNumSlider::CheckPointIn(int x, int y) {
    if (!m_pFont)
        return false;
    ApplyFontSize();
    int left = 0;
    int top = 0;
    GetScreenXY(left, top);
    const std::int64_t right = std::int64_t{left} + m_pFont->GetStringWidth(wheel::kTouchMeasure, false);
    const std::int64_t bottom = std::int64_t{top} + std::int64_t{wheel::kTouchRows} * m_nFontHeight;
    return x >= left && x <= right && y >= top && y <= bottom;
}

bool CLQNumSlider::DoMessage(_LQMessage* msg) {
    if (!msg)
        return false;
    switch (msg->code) {
        case korvane::kMsgPress:
            return DoPress(*msg);
        case korvane::kMsgRelease:
            DoRelease(*msg);
            // Consumed also without a press: unlike other controls the wheel keeps every release to itself.
            return true;
        default:
            return false;
    }
}

bool CLQNumSlider::DoPress(const _LQMessage& msg) {
    if (!CheckPointIn(msg.x, msg.y))
        return false;
    m_nPressY = msg.y;
    m_nPress = 1;
    if (m_bMoving) {
        const korvane::LifeWatch self = WatchLife();
        CallBack(m_pfnMoveStop);
        // The release of a touch that stops the wheel is no swipe.
        if (self.IsAlive())
            m_nPress = 0;
    }
    return true;
}

void CLQNumSlider::DoRelease(const _LQMessage& msg) {
    if (m_nPress != 1)
        return;
    const std::int64_t distance = std::int64_t{msg.y} - m_nPressY;
    m_nPressY = msg.y;
    m_nPress = 0;
    if (HasValue() && !m_bMoving && std::abs(distance) > wheel::kSwipeTolerance)
        SlideMove(distance > 0);
}

void CLQNumSlider::Draw(CLQSurfHandle& target) {
    if (m_pOwnerWnd && !IsNeedRedraw())
        return;
    ApplyFontSize();
    _LQRect area;
    GetScreenXY(area.left, area.top);
    area.right = area.left + m_nWidth;
    area.bottom = area.top + m_nHeight;
    if (HasValue()) {
        DrawNumbers(target, area);
        korvane::BlitWhole(target, m_pLabel, area.left + wheel::kLabelLeft, area.top + wheel::kLabelTop);
    }
    DrawImages(target, area);
    if (m_pOwnerWnd)
        Redraw(false);
}

void CLQNumSlider::DrawNumbers(CLQSurfHandle& target, const _LQRect& area) {
    if (!m_pFont)
        return;
    const int rows = m_bMoving ? wheel::kRowsRolling : wheel::kRowsAtRest;
    if (m_bDecimal)
        DrawOdometer(target, area, rows);
    else
        DrawCounter(target, area, rows);
}

void CLQNumSlider::DrawOdometer(CLQSurfHandle& target, const _LQRect& area, int rows) {
    const int integerRight = area.left + m_pFont->GetStringWidth(wheel::kIntegerMeasure, false);
    const int pointRight = area.left + m_pFont->GetStringWidth(wheel::kPointMeasure, false);
    const int fractionRight = area.left + m_pFont->GetStringWidth(wheel::kFractionMeasure, false);

    wchar_t text[kNumberLength];
    for (int row = 0; row < rows; ++row) {
        const int steps = row - wheel::kMiddleRow;
        std::swprintf(text, kNumberLength, L"%d", Saturated(std::int64_t{m_nInteger} + steps));
        DrawNumberText(target, text, integerRight, area.top + wheel::OdometerRowTop(row, m_nIntegerOffset),
                       area);

        const float neighbour = m_fValue + static_cast<float>(steps) * m_fScale;
        std::swprintf(text, kNumberLength, L"%.2d", korvane::HundredthsPart(neighbour));
        DrawNumberText(target, text, fractionRight, area.top + wheel::OdometerRowTop(row, m_nDecimalOffset),
                       area);
    }
    // The point stands still.
    DrawNumberText(target, L".", pointRight, area.top + wheel::OdometerRowTop(wheel::kMiddleRow, 0), area);
}

void CLQNumSlider::DrawCounter(CLQSurfHandle& target, const _LQRect& area, int rows) {
    const std::int64_t step = korvane::TruncateToInt(m_fScale);

    wchar_t text[kNumberLength];
    for (int row = 0; row < rows; ++row) {
        const int number = Saturated(m_nInteger + (row - wheel::kMiddleRow) * step);
        std::swprintf(text, kNumberLength, L"%d", number);
        DrawNumberText(target, text, area.left + wheel::CounterRight(number),
                       area.top + wheel::CounterRowTop(row, m_nIntegerOffset), area);
    }
}

void CLQNumSlider::DrawNumberText(CLQSurfHandle& target, const wchar_t* text, int right, int top,
                                  _LQRect clip) {
    _LQColor white = White();
    target.DrawTextW(text, m_pFont, right, top, eText_Right, white, &clip, 0);
}

void CLQNumSlider::DrawImages(CLQSurfHandle& target, const _LQRect& area) {
    korvane::BlitWhole(target, m_pShadowUp, area.left, area.top);
    korvane::BlitWhole(target, m_pShadowDown, area.left, area.bottom - HeightOf(m_pShadowDown));
    korvane::BlitWhole(target, m_pSeekUp, area.left + wheel::kSeekLeft, area.top + wheel::kSeekUpTop);
    korvane::BlitWhole(target, m_pSeekDown, area.left + wheel::kSeekLeft,
                       area.bottom - wheel::kSeekDownAboveBottom);
}
