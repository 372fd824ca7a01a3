#pragma once

#include "platform/Display.h"

namespace korvane {

/// Makes the calling thread's queue wait for this display's events. False when another display is open
/// already or `owner` is no window of the calling thread.
bool ActivateDisplay(Display* display, HWND owner);

/// After this no thread calls the display any more.
void DeactivateDisplay(Display* display);

/// Keeps the text for DisplayFailure and returns false.
bool FailDisplay(const char* text);

}  // namespace korvane
