#pragma once

#include <cstdint>

#include "platform/coredll.h"

/// What the clock needs of the system under it.
namespace korvane {

/// Milliseconds of a clock that only ever goes on; its low 32 bits are the system's GetTickCount.
std::int64_t SystemMilliseconds();
SYSTEMTIME SystemLocalTime();

/// Makes every waiting thread look again: the clock has changed.
void WakeAllQueues();

}  // namespace korvane
