#pragma once

#include "platform/Display.h"

namespace korvane {

/// False, with the reason kept, when another display is open already or `owner` is no window of the calling
/// thread.
bool MayActivateDisplay(const Display* display, HWND owner);

/// Joins the display to the calling thread's queue: while that waits, what the user does there ends the wait.
/// From here on other threads may wake the display.
void ActivateDisplay(Display* display, HWND owner);

/// After this no thread calls the display any more.
void DeactivateDisplay(const Display* display);

}  // namespace korvane
