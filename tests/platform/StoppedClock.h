#pragma once

#include "platform/Simulation.h"

namespace korvane {

/// Stops the clock for as long as it lives.
class StoppedClock {
  public:
    explicit StoppedClock(unsigned tick = 100000,
                          const SYSTEMTIME& time = {2024, 2, 4, 29, 23, 59, 59, 990}) {
        UseManualClock(tick, time);
    }
    ~StoppedClock() {
        SetIdleHandler({});
        UseSystemClock();
    }
    StoppedClock(const StoppedClock&) = delete;
    StoppedClock& operator=(const StoppedClock&) = delete;
};

}  // namespace korvane
