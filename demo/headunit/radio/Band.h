#pragma once

#include <array>
#include <string>

#include "KorvaneEx.h"

namespace korvane::demo {

constexpr int kPresets = 6;

/// A wave band of the radio: its name, its bounds, the station that it starts on and those that the factory
/// has stored. Frequencies are in the unit of the bounds and count in steps from the lower one.
struct Band {
    const wchar_t* name;
    _FreqStruct_ bounds;
    int kilohertzOfUnit;
    float start;
    std::array<float, kPresets> presets;

    /// Tuning steps from the lower bound to the upper one, and to a frequency (the nearest step).
    int StepCount() const;
    int StepOf(float frequency) const;
    float FrequencyOf(int step) const;

    /// The frequency of a step in kilohertz, and the step of such a frequency: -1 when the band has none.
    int KilohertzOf(int step) const;
    int StepAt(int kilohertz) const;

    /// The frequency as the radio writes it: short ("87.5", "531") and with all its digits ("87.50", "531").
    std::wstring Text(float frequency) const;
    std::wstring FullText(float frequency) const;
};

/// FM: 87.5 to 108.0 MHz in steps of 0.05. AM: 531 to 1602 kHz in steps of 9.
Band MakeFm();
Band MakeAm();

}  // namespace korvane::demo
