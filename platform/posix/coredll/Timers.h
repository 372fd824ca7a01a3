#pragma once

#include "platform/posix/coredll/Types.h"

typedef void(CALLBACK* TIMERPROC)(HWND window, UINT message, UINT_PTR id, DWORD tick);

constexpr UINT USER_TIMER_MINIMUM = 0x0000000A;
constexpr UINT USER_TIMER_MAXIMUM = 0x7FFFFFFF;

extern "C" {

/// Starts a periodic timer of the calling thread and returns its id, 0 on failure. The same window and id
/// again restarts the timer. With a null window the id is chosen anew unless it names a timer of this thread.
/// `periodMs` is brought into USER_TIMER_MINIMUM to USER_TIMER_MAXIMUM.
///
/// The timer falls due every `periodMs` counted from its start, however late its messages are taken: a late
/// one does not shift the next. At most one WM_TIMER of a timer waits at a time; periods that pass while it
/// waits are skipped.
KORVANE_API UINT_PTR SetTimer(HWND window, UINT_PTR id, UINT periodMs, TIMERPROC procedure);

/// Ends a timer of the calling thread; a WM_TIMER of it that is already due no longer comes. FALSE when there
/// is no such timer.
KORVANE_API BOOL KillTimer(HWND window, UINT_PTR id);
}
