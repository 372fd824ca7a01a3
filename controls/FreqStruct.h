#pragma once

#include <string>

/// The bounds of a tuner's frequency scale, taken by value by the controls that show one. Frequencies are in
/// the band's own unit (MHz, kHz) and positive.
struct _FreqStruct_ {
    float minimum = 0.0f;
    float maximum = 0.0f;
    float scale = 0.0f;    ///< one tuning step
    bool decimal = false;  ///< frequencies have decimals; false: they are whole numbers
    std::wstring freqID;   ///< the label beside the frequency
};
