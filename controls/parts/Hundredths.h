#pragma once

namespace korvane {

/// The value without its fraction. Beyond the range of int the nearest end of it; 0 for NaN.
int TruncateToInt(float value);

/// Integer part and hundredths of a frequency, as all tuner controls split it: 87.5 gives 87 and 50.
///
/// A guard of 0.002 is added first, so that 87.5 stored as 87.4999 splits in the same way. The rest is cut
/// off, not rounded. The hundredths of a negative value are negative.
int IntegerPart(float value);
int HundredthsPart(float value);

}  // namespace korvane
