#pragma once

#include <cstdint>

#include "platform/coredll.h"

namespace korvane {

/// Milliseconds from 1970-01-01 00:00 in the proleptic Gregorian calendar. Fields beyond their range carry
/// over; the day of the week is ignored.
std::int64_t MillisecondsFromCalendar(const SYSTEMTIME& time);

/// The inverse. Years are kept modulo 65536, all that the record holds.
SYSTEMTIME CalendarFromMilliseconds(std::int64_t milliseconds);

}  // namespace korvane
