#include "demo/headunit/gauges/Drive.h"

#include <algorithm>
#include <iterator>

namespace korvane::demo {

namespace {

/// The speed at a moment of a round. Between two of them it changes evenly.
struct Moment {
    int ms;
    int speed;
};
constexpr Moment kRound[] = {{0, 0},       {2000, 0},   {10000, 50}, {18000, 50}, {32000, 130},
                             {46000, 130}, {54000, 80}, {62000, 80}, {70000, 0}};
constexpr int kRoundMs = 70000;

/// A gear is used up to a speed; its engine turns that often a minute for each km/h.
struct Gear {
    int upToSpeed;
    int turnsPerSpeed;
};
constexpr Gear kGears[] = {{20, 130}, {40, 70}, {65, 45}, {95, 33}, {130, 25}};
constexpr int kIdleSpeed = 800;

constexpr int kFullest = 80;
constexpr int kEmptiest = 5;
constexpr unsigned kMsPerPercent = 12000;

int SpeedAt(int ms) {
    const Moment* const next = std::find_if(std::begin(kRound) + 1, std::end(kRound) - 1,
                                            [ms](const Moment& moment) { return moment.ms > ms; });
    const Moment& last = *(next - 1);
    return last.speed + (next->speed - last.speed) * (ms - last.ms) / (next->ms - last.ms);
}

int EngineSpeedAt(int speed) {
    const Gear* const gear = std::find_if(std::begin(kGears), std::end(kGears) - 1,
                                          [speed](const Gear& any) { return speed <= any.upToSpeed; });
    return std::max(kIdleSpeed, speed * gear->turnsPerSpeed);
}

int FuelAt(unsigned ms) {
    constexpr unsigned kLevels = kFullest - kEmptiest + 1;
    return kFullest - static_cast<int>(ms / kMsPerPercent % kLevels);
}

}  // namespace

Instruments InstrumentsAt(unsigned ms) {
    const int speed = SpeedAt(static_cast<int>(ms % kRoundMs));
    return {speed, EngineSpeedAt(speed), FuelAt(ms)};
}

}  // namespace korvane::demo
