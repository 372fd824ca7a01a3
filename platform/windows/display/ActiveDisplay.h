#pragma once

#include "platform/display/ActiveDisplay.h"

namespace korvane {

/// Whether the calling thread has the display that is active. Its windows get what the user does under the
/// manual clock, too.
bool IsDisplayThread();

/// The window of the active display, null when none is.
HWND DisplayWindow();

}  // namespace korvane
