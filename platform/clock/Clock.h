#pragma once

#include <cstdint>

#include "platform/coredll.h"

namespace korvane {

/// A point on the process's time line in milliseconds. The line never jumps or wraps: exchanging the system's
/// clock for the manual one continues it, so what was due in 20 ms still is.
using Moment = std::int64_t;

Moment CurrentMoment();

/// True, with the clock moved on and every waiting thread looking again, when the clock is manual.
bool AdvanceManualClock(std::uint32_t ms);

/// What GetTickCount and GetLocalTime tell.
DWORD TickCount();
SYSTEMTIME LocalTime();

}  // namespace korvane
