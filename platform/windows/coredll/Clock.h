#pragma once

#include "platform/Export.h"
#include "platform/windows/System.h"

namespace korvane::desktop {

/// The system's own, or the manual clock's while one is in use.
KORVANE_API DWORD GetTickCount();
KORVANE_API void GetLocalTime(SYSTEMTIME* time);

/// Under the manual clock it returns at once and moves that clock on.
KORVANE_API void Sleep(DWORD ms);

}  // namespace korvane::desktop

#ifndef KORVANE_SYSTEM_CALLS
#define GetTickCount korvane::desktop::GetTickCount
#define GetLocalTime korvane::desktop::GetLocalTime
#define Sleep korvane::desktop::Sleep
#endif
