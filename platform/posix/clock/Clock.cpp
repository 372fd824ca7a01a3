#include "platform/posix/clock/Clock.h"

#include <chrono>
#include <mutex>
#include <time.h>

#include "platform/Simulation.h"
#include "platform/posix/clock/Calendar.h"
#include "platform/posix/queue/Waiting.h"

namespace korvane {
namespace {

std::int64_t SystemMilliseconds() {
    using std::chrono::steady_clock;
    return std::chrono::duration_cast<std::chrono::milliseconds>(steady_clock::now().time_since_epoch())
        .count();
}

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

SYSTEMTIME SystemLocalTime() {
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    std::tm fields{};
    localtime_r(&now.tv_sec, &fields);
    SYSTEMTIME time{};
    time.wYear = static_cast<WORD>(fields.tm_year + 1900);
    time.wMonth = static_cast<WORD>(fields.tm_mon + 1);
    time.wDayOfWeek = static_cast<WORD>(fields.tm_wday);
    time.wDay = static_cast<WORD>(fields.tm_mday);
    time.wHour = static_cast<WORD>(fields.tm_hour);
    time.wMinute = static_cast<WORD>(fields.tm_min);
    time.wSecond = static_cast<WORD>(fields.tm_sec);
    time.wMilliseconds = static_cast<WORD>(now.tv_nsec / 1000000);
    return time;
}

}  // namespace

Moment CurrentMoment() {
    ClockState& state = State();
    const std::lock_guard<std::mutex> lock(state.mutex);
    return NowOf(state);
}

bool AdvanceManualClock(std::uint32_t ms) {
    ClockState& state = State();
    const std::lock_guard<std::mutex> lock(state.mutex);
    if (state.manual)
        state.manualNow += ms;
    return state.manual;
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
    if (AdvanceManualClock(ms))
        WakeAllQueues();
}

}  // namespace korvane

extern "C" {

DWORD GetTickCount() {
    korvane::ClockState& state = korvane::State();
    const std::lock_guard<std::mutex> lock(state.mutex);
    return static_cast<DWORD>(korvane::NowOf(state) + state.tickOffset);
}

void GetLocalTime(SYSTEMTIME* time) {
    if (!time)
        return;
    korvane::ClockState& state = korvane::State();
    const std::lock_guard<std::mutex> lock(state.mutex);
    *time = state.manual ? korvane::CalendarFromMilliseconds(state.manualNow + state.localOffset)
                         : korvane::SystemLocalTime();
}

void Sleep(DWORD ms) {
    if (korvane::AdvanceManualClock(ms))
        korvane::WakeAllQueues();
    else
        korvane::WaitWithoutRetrieving(ms);
}
}
