#include <chrono>
#include <time.h>

#include "platform/clock/Clock.h"
#include "platform/clock/SystemTime.h"
#include "platform/posix/queue/Waiting.h"

namespace korvane {

std::int64_t SystemMilliseconds() {
    using std::chrono::steady_clock;
    return std::chrono::duration_cast<std::chrono::milliseconds>(steady_clock::now().time_since_epoch())
        .count();
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

}  // namespace korvane

extern "C" {

DWORD GetTickCount() {
    return korvane::TickCount();
}

void GetLocalTime(SYSTEMTIME* time) {
    if (time)
        *time = korvane::LocalTime();
}

void Sleep(DWORD ms) {
    if (!korvane::AdvanceManualClock(ms))
        korvane::WaitWithoutRetrieving(ms);
}
}
