#pragma once

#include "controls/NumSlider.h"
#include "engine/core/Message.h"
#include "engine/text/FontManager.h"

namespace korvane::test {

constexpr int kTicksPerStep = 4;
constexpr int kWheelX = 40;
constexpr int kWheelY = 20;
constexpr int kWheelWidth = 320;
constexpr int kWheelHeight = 228;
constexpr int kWheelFontSize = 60;

/// A wheel that lets tests read what a derived class can read.
class TestWheel : public CLQNumSlider {
  public:
    float Value() const { return m_fValue; }
    int IntegerPart() const { return m_nInteger; }
    int DecimalPart() const { return m_nDecimal; }
    int IntegerOffset() const { return m_nIntegerOffset; }
    int DecimalOffset() const { return m_nDecimalOffset; }
    int PressY() const { return m_nPressY; }
    bool TimerRuns() { return m_timer.IsActived(); }

    /// Sets the wheel up as an application does.
    void Prepare(const _FreqStruct_& bounds, float value) {
        Create(kWheelX, kWheelY, kWheelWidth, kWheelHeight);
        SetFont(CLQFontManager::GetInstance()->GetDefaultFont());
        SetFontSize(kWheelFontSize, kWheelFontSize);
        SetBoundScalFreqID(bounds);
        SetVaule(value);
    }

    bool Press(int x, int y) { return Hand(kMsgPress, x, y); }
    bool Drag(int x, int y) { return Hand(kMsgMove, x, y); }
    bool Release(int x, int y) { return Hand(kMsgRelease, x, y); }
    bool Hand(unsigned int code, int x, int y) {
        _LQMessage msg;
        msg.code = code;
        msg.x = x;
        msg.y = y;
        return DoMessage(&msg);
    }

    void Tick(int times) {
        for (int i = 0; i < times; ++i)
            OnTime(nullptr, 0);
    }
};

/// The stations from 87.5 to 108 MHz, two decimals.
inline _FreqStruct_ FmBounds() {
    return {87.5f, 108.0f, 0.05f, true, L"MHz"};
}

/// The stations from 531 to 1602 kHz, whole numbers.
inline _FreqStruct_ AmBounds() {
    return {531.0f, 1602.0f, 9.0f, false, L"kHz"};
}

}  // namespace korvane::test
