#pragma once

#include <cstdint>
#include <vector>

#include "controls/DialSlider.h"
#include "engine/text/FontManager.h"

#include "tests/controls/dials/Surfaces.h"
#include "tests/support/Scene.h"

namespace korvane::test {

constexpr int kTunerX = 30;
constexpr int kTunerY = 20;
constexpr int kTunerWidth = 150;
constexpr int kTunerHeight = 240;
constexpr int kTunerFontSize = 20;

/// A tuning scale that lets tests read what a derived class can read.
class TestTuner : public CLQDialSlider {
  public:
    float Value() const { return m_fValue; }
    const std::vector<float>& Shortcuts() const { return m_vecShortcut; }
    int TickCount() const { return m_nTickCount; }
    int HalfSpan() const { return m_nHalfSpan; }
    int PressY() const { return m_nPressY; }

    /// Sets the scale up as an application does.
    void Prepare(const _FreqStruct_& bounds, float value, int height = kTunerHeight) {
        Create(kTunerX, kTunerY, kTunerWidth, height);
        SetFontSize(kTunerFontSize, kTunerFontSize);
        SetBoundScalFreqID(bounds);
        SetVaule(value);
    }
};

/// 87.5 to 108 MHz, ten steps to a MHz.
inline _FreqStruct_ FmScale() {
    return {87.5f, 108.0f, 0.1f, true, L"MHz"};
}

/// 531 to 1602 kHz, whole numbers.
inline _FreqStruct_ AmScale() {
    return {531.0f, 1602.0f, 9.0f, false, L"kHz"};
}

inline CLQSurfHandle GreyCanvas() {
    return Filled(220, 460, {110, 130, 150, 255});
}

/// What the scale paints without a window, over a grey canvas.
inline std::vector<std::uint32_t> LooksOf(CLQDialSlider& tuner) {
    CLQSurfHandle canvas = GreyCanvas();
    tuner.Draw(canvas);
    return PixelsOf(canvas);
}

/// The marker of a preset in most tests.
constexpr int kIconWidth = 26;
constexpr int kIconHeight = 24;
inline CLQSurfHandle Icon() {
    return Filled(kIconWidth, kIconHeight, {255, 190, 70, 255});
}

}  // namespace korvane::test
