#include "platform/clock/Calendar.h"

namespace korvane {
namespace {

constexpr std::int64_t kMsPerDay = 24LL * 60 * 60 * 1000;
constexpr std::int64_t kDaysPerEra = 146097;   // 400 years
constexpr std::int64_t kDaysToEpoch = 719468;  // from 0000-03-01 to 1970-01-01

std::int64_t FloorDivide(std::int64_t value, std::int64_t by) {
    return value / by - (value % by < 0 ? 1 : 0);
}

}  // namespace

// Years are counted from March, so that the leap day is the last day of a year. 153 days are five months from
// March on (31 + 30 + 31 + 30 + 31), twice over in a year.

std::int64_t MillisecondsFromCalendar(const SYSTEMTIME& time) {
    const std::int64_t months = time.wYear * 12LL + time.wMonth - 3;  // since March of year 0
    const std::int64_t year = FloorDivide(months, 12);
    const std::int64_t month = months - year * 12;
    const std::int64_t days = year * 365 + FloorDivide(year, 4) - FloorDivide(year, 100) +
                              FloorDivide(year, 400) + (153 * month + 2) / 5 + time.wDay - 1 - kDaysToEpoch;
    const std::int64_t seconds = (time.wHour * 60LL + time.wMinute) * 60 + time.wSecond;
    return days * kMsPerDay + seconds * 1000 + time.wMilliseconds;
}

SYSTEMTIME CalendarFromMilliseconds(std::int64_t milliseconds) {
    const std::int64_t epochDay = FloorDivide(milliseconds, kMsPerDay);
    const std::int64_t inDay = milliseconds - epochDay * kMsPerDay;

    const std::int64_t days = epochDay + kDaysToEpoch;
    const std::int64_t era = FloorDivide(days, kDaysPerEra);
    const std::int64_t inEra = days - era * kDaysPerEra;
    const std::int64_t yearOfEra = (inEra - inEra / 1460 + inEra / 36524 - inEra / 146096) / 365;
    const std::int64_t inYear = inEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const std::int64_t month = (5 * inYear + 2) / 153;

    SYSTEMTIME time{};
    time.wYear = static_cast<WORD>(era * 400 + yearOfEra + (month >= 10 ? 1 : 0));
    time.wMonth = static_cast<WORD>(month < 10 ? month + 3 : month - 9);
    time.wDay = static_cast<WORD>(inYear - (153 * month + 2) / 5 + 1);
    time.wDayOfWeek = static_cast<WORD>((epochDay + 4) - FloorDivide(epochDay + 4, 7) * 7);
    time.wHour = static_cast<WORD>(inDay / (60 * 60 * 1000LL));
    time.wMinute = static_cast<WORD>(inDay / (60 * 1000LL) % 60);
    time.wSecond = static_cast<WORD>(inDay / 1000 % 60);
    time.wMilliseconds = static_cast<WORD>(inDay % 1000);
    return time;
}

}  // namespace korvane
