#include "platform/clock/Clock.h"
#include "platform/clock/SystemTime.h"

namespace korvane {

std::int64_t SystemMilliseconds() {
    return static_cast<std::int64_t>(GetTickCount64());
}

SYSTEMTIME SystemLocalTime() {
    SYSTEMTIME time{};
    ::GetLocalTime(&time);
    return time;
}

namespace desktop {

DWORD GetTickCount() {
    return TickCount();
}

void GetLocalTime(SYSTEMTIME* time) {
    if (time)
        *time = LocalTime();
}

void Sleep(DWORD ms) {
    if (!AdvanceManualClock(ms))
        ::Sleep(ms);
}

}  // namespace desktop
}  // namespace korvane
