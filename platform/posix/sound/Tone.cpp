#include "platform/posix/sound/Tone.h"

#include <algorithm>
#include <cmath>

namespace korvane {
namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr double kHertz = 1000.0;
constexpr double kSeconds = 0.080;
constexpr double kEdgeSeconds = 0.008;
constexpr double kLevel = 32767.0 / 4;

}  // namespace

std::vector<std::int16_t> KeyTone(int samplesPerSecond) {
    std::vector<std::int16_t> samples(static_cast<std::size_t>(std::max(samplesPerSecond, 0) * kSeconds));
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const double at = static_cast<double>(i) / samplesPerSecond;
        const double fromEdge = std::min({at, kSeconds - at, kEdgeSeconds}) / kEdgeSeconds;
        const double edge = 0.5 - 0.5 * std::cos(kPi * fromEdge);
        samples[i] = static_cast<std::int16_t>(std::lround(kLevel * edge * std::sin(2 * kPi * kHertz * at)));
    }
    return samples;
}

}  // namespace korvane
