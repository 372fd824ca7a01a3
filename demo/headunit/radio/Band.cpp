#include "demo/headunit/radio/Band.h"

#include <cmath>

namespace korvane::demo {

namespace {

_FreqStruct_ Bounds(float minimum, float maximum, float step, bool decimal, const wchar_t* label) {
    _FreqStruct_ bounds;
    bounds.minimum = minimum;
    bounds.maximum = maximum;
    bounds.scale = step;
    bounds.decimal = decimal;
    bounds.freqID = label;
    return bounds;
}

std::wstring Digits(float frequency, std::size_t decimals) {
    long scale = 1;
    for (std::size_t i = 0; i < decimals; ++i)
        scale *= 10;
    const long number = std::lround(frequency * static_cast<float>(scale));
    std::wstring text = std::to_wstring(number / scale);
    if (decimals > 0) {
        const std::wstring fraction = std::to_wstring(number % scale);
        text += L"." + std::wstring(decimals - fraction.size(), L'0') + fraction;
    }
    return text;
}

}  // namespace

int Band::StepCount() const {
    return StepOf(bounds.maximum);
}

int Band::StepOf(float frequency) const {
    return static_cast<int>(std::lround((frequency - bounds.minimum) / bounds.scale));
}

float Band::FrequencyOf(int step) const {
    return bounds.minimum + static_cast<float>(step) * bounds.scale;
}

int Band::KilohertzOf(int step) const {
    return static_cast<int>(std::lround(FrequencyOf(step) * static_cast<float>(kilohertzOfUnit)));
}

int Band::StepAt(int kilohertz) const {
    if (kilohertz < KilohertzOf(0) || kilohertz > KilohertzOf(StepCount()))
        return -1;
    const int step = StepOf(static_cast<float>(kilohertz) / static_cast<float>(kilohertzOfUnit));
    return KilohertzOf(step) == kilohertz ? step : -1;
}

std::wstring Band::Text(float frequency) const {
    return Digits(frequency, bounds.decimal ? 1 : 0);
}

std::wstring Band::FullText(float frequency) const {
    return Digits(frequency, bounds.decimal ? 2 : 0);
}

Band MakeFm() {
    return {L"FM",
            Bounds(87.5f, 108.0f, 0.05f, true, L"MHz"),
            1000,
            98.5f,
            {89.1f, 94.65f, 97.9f, 98.5f, 99.1f, 105.2f}};
}

Band MakeAm() {
    return {L"AM",
            Bounds(531.0f, 1602.0f, 9.0f, false, L"kHz"),
            1,
            990.0f,
            {558.0f, 693.0f, 909.0f, 990.0f, 1089.0f, 1341.0f}};
}

}  // namespace korvane::demo
