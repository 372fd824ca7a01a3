#pragma once

namespace korvane {

/// The value without its fraction. Beyond the range of int the nearest end of it; 0 for NaN.
int TruncateToInt(float value);

/// A frequency in hundredths, as all tuner controls count it: 87.5 gives 8750.
///
/// A guard of 0.002 is added first, so that 87.5 stored as 87.4999 counts as the same. The rest is cut off,
/// not rounded.
int InHundredths(float value);

/// The integer part and the hundredths that this splits into: 87.5 gives 87 and 50. The hundredths of a
/// negative value are negative.
int IntegerPart(float value);
int HundredthsPart(float value);

}  // namespace korvane
