#pragma once

#include "platform/Export.h"
#include "platform/windows/System.h"

// While the system's clock is in use each of these is the system's own. Under the manual clock a retrieval
// gives, in this order: what was sent; posted messages; WM_QUIT, if it was asked for; input; WM_PAINT;
// WM_TIMER. Message times and timers follow that clock.

namespace korvane::desktop {

/// A wait under the manual clock ends as platform/Simulation.h says.
KORVANE_API BOOL GetMessageW(MSG* message, HWND window, UINT first, UINT last);
KORVANE_API BOOL PeekMessageW(MSG* message, HWND window, UINT first, UINT last, UINT remove);
KORVANE_API LRESULT DispatchMessageW(const MSG* message);
KORVANE_API BOOL PostMessageW(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

KORVANE_API UINT_PTR SetTimer(HWND window, UINT_PTR id, UINT periodMs, TIMERPROC procedure);
KORVANE_API BOOL KillTimer(HWND window, UINT_PTR id);

/// FALSE under the manual clock, in which no time passes that could be heard.
KORVANE_API BOOL MessageBeep(UINT kind);

}  // namespace korvane::desktop

#ifndef KORVANE_SYSTEM_CALLS
#define GetMessageW korvane::desktop::GetMessageW
#define PeekMessageW korvane::desktop::PeekMessageW
#define DispatchMessageW korvane::desktop::DispatchMessageW
#define PostMessageW korvane::desktop::PostMessageW
#define KillTimer korvane::desktop::KillTimer
#define MessageBeep korvane::desktop::MessageBeep
// Classes have functions of this name, too, which take one argument.
#define SetTimer(...) KORVANE_FIFTH(__VA_ARGS__, korvane::desktop::SetTimer, , , SetTimer, )(__VA_ARGS__)
#define KORVANE_FIFTH(first, second, third, fourth, fifth, ...) fifth
#endif
