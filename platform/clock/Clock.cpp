#include "platform/clock/Clock.h"

#include <mutex>

#include "platform/Simulation.h"
#include "platform/clock/Calendar.h"
#include "platform/clock/SystemTime.h"

namespace korvane {
namespace {

struct ClockState {
    std::mutex mutex;
    bool manual = false;
    Moment systemOffset = 0;  // moment minus the system's milliseconds, while the system's clock is in use
    Moment manualNow = 0;
    std::int64_t tickOffset = 0;   // tick minus moment, before the tick wraps
    std::int64_t localOffset = 0;  // local calendar milliseconds minus moment, of the manual clock
};

ClockState& State() {
    // Never destroyed: static destructors of other modules may still ask for the time.
    static ClockState& state = *new ClockState;
    return state;
}

Moment NowOf(const ClockState& state) {
    return state.manual ? state.manualNow : SystemMilliseconds() + state.systemOffset;
}

}  // namespace

Moment CurrentMoment() {
    ClockState& state = State();
    const std::lock_guard<std::mutex> lock(state.mutex);
    return NowOf(state);
}

bool AdvanceManualClock(std::uint32_t ms) {
    {
        ClockState& state = State();
        const std::lock_guard<std::mutex> lock(state.mutex);
        if (!state.manual)
            return false;
        state.manualNow += ms;
    }
    WakeAllQueues();
    return true;
}

void UseManualClock(unsigned startTick, const SYSTEMTIME& localTime) {
    {
        ClockState& state = State();
        const std::lock_guard<std::mutex> lock(state.mutex);
        state.manualNow = NowOf(state);
        state.manual = true;
        state.tickOffset = static_cast<std::int64_t>(startTick) - state.manualNow;
        state.localOffset = MillisecondsFromCalendar(localTime) - state.manualNow;
    }
    WakeAllQueues();
}

void UseSystemClock() {
    {
        ClockState& state = State();
        const std::lock_guard<std::mutex> lock(state.mutex);
        const Moment now = NowOf(state);
        const std::int64_t system = SystemMilliseconds();
        state.manual = false;
        state.systemOffset = now - system;
        state.tickOffset = system - now;
    }
    WakeAllQueues();
}

bool IsManualClock() {
    ClockState& state = State();
    const std::lock_guard<std::mutex> lock(state.mutex);
    return state.manual;
}

void AdvanceClock(unsigned ms) {
    AdvanceManualClock(ms);
}

DWORD TickCount() {
    ClockState& state = State();
    const std::lock_guard<std::mutex> lock(state.mutex);
    return static_cast<DWORD>(NowOf(state) + state.tickOffset);
}

SYSTEMTIME LocalTime() {
    ClockState& state = State();
    const std::lock_guard<std::mutex> lock(state.mutex);
    return state.manual ? CalendarFromMilliseconds(state.manualNow + state.localOffset) : SystemLocalTime();
}

}  // namespace korvane
