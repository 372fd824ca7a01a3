#pragma once

#include "platform/posix/coredll/Types.h"

typedef struct _SYSTEMTIME {
    WORD wYear;
    WORD wMonth;      // 1 to 12
    WORD wDayOfWeek;  // 0 is Sunday
    WORD wDay;
    WORD wHour;
    WORD wMinute;
    WORD wSecond;
    WORD wMilliseconds;
} SYSTEMTIME;

extern "C" {

/// Milliseconds since the system started; wraps to 0 after 2^32 ms. Follows the manual clock when one is in
/// use.
KORVANE_API DWORD GetTickCount();

/// Suspends the thread for at least `ms` milliseconds without retrieving messages. Under the manual clock it
/// returns at once and moves that clock on. On the thread of a display, touches that arrive meanwhile enter
/// the queue with the time of their arrival.
KORVANE_API void Sleep(DWORD ms);

KORVANE_API void GetLocalTime(SYSTEMTIME* time);
}
