#pragma once

#include "platform/windows/queue/ThreadQueue.h"

// The timers that the system runs for the calling thread while its clock is in use. Those of no window are
// numbered here and not by the system, so that they keep their numbers when the clock is exchanged.
namespace korvane {

bool StartInSystem(ThreadQueue& queue, const Timer& timer);
bool EndInSystem(ThreadQueue& queue, HWND window, UINT_PTR id);

/// Gives a WM_TIMER that the system has made the number and procedure that the program knows.
void TranslateSystemTimer(ThreadQueue& queue, MSG& message);

}  // namespace korvane
