#pragma once

#include "KorvaneEx.h"

namespace korvane::demo {

/// A wave band of the radio: its name, its bounds and the station that it starts on.
struct Band {
    const wchar_t* name;
    _FreqStruct_ bounds;
    float start;

    /// Tuning steps from the lower bound to the upper one, and to a frequency (the nearest step).
    int StepCount() const;
    int StepOf(float frequency) const;
    float FrequencyOf(int step) const;
    /// The frequency as the radio writes it: "87.5", "531".
    std::wstring Text(float frequency) const;
};

/// FM: 87.5 to 108.0 MHz in steps of 0.05. AM: 531 to 1602 kHz in steps of 9.
Band MakeFm();
Band MakeAm();

}  // namespace korvane::demo
