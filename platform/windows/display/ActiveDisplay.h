#pragma once

#include "platform/Display.h"

namespace korvane {

/// False, with the reason kept, when another display shows something already or `owner` is no window of the
/// calling thread.
bool MayActivateDisplay(const Display* display, HWND owner);

/// From here on the calling thread's windows get what the user does under the manual clock, too.
void ActivateDisplay(const Display* display, HWND owner);
void DeactivateDisplay(const Display* display);

/// Whether the calling thread has the display that is active.
bool IsDisplayThread();

/// The window of the active display, null when none is.
HWND DisplayWindow();

}  // namespace korvane
