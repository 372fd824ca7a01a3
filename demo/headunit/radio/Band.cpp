#include "demo/headunit/radio/Band.h"

#include <cmath>
#include <cwchar>

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

std::wstring Band::Text(float frequency) const {
    wchar_t text[16] = L"";
    std::swprintf(text, std::size(text), bounds.decimal ? L"%.1f" : L"%.0f", static_cast<double>(frequency));
    return text;
}

Band MakeFm() {
    return {L"FM", Bounds(87.5f, 108.0f, 0.05f, true, L"MHz"), 98.5f};
}

Band MakeAm() {
    return {L"AM", Bounds(531.0f, 1602.0f, 9.0f, false, L"kHz"), 990.0f};
}

}  // namespace korvane::demo
