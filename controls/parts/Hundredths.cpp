#include "controls/parts/Hundredths.h"

#include <limits>

namespace korvane {

int TruncateToInt(float value) {
    constexpr float kBeyondInt = 2147483648.0f;
    if (value >= kBeyondInt)
        return std::numeric_limits<int>::max();
    if (value < -kBeyondInt)
        return std::numeric_limits<int>::min();
    return value == value ? static_cast<int>(value) : 0;
}

int InHundredths(float value) {
    // Every step is rounded to single precision, the product too: a product in double precision would differ
    // in the last hundredth of some frequencies.
    const float guarded = static_cast<float>(static_cast<double>(value) + 0.002);
    const float hundredths = guarded * 100.0f;
    return TruncateToInt(hundredths);
}

int IntegerPart(float value) {
    return InHundredths(value) / 100;
}

int HundredthsPart(float value) {
    return InHundredths(value) % 100;
}

}  // namespace korvane
