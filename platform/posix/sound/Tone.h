#pragma once

#include <cstdint>
#include <vector>

namespace korvane {

/// The tone of a touched key: a sine of 1000 Hz for 80 ms at a quarter of the full level, whose edges rise
/// and fall for 8 ms each so that they do not click. One channel, 16 bits.
std::vector<std::int16_t> KeyTone(int samplesPerSecond);

}  // namespace korvane
