#pragma once

#include "platform/Display.h"

namespace korvane {

/// False, with the reason kept, when another display is open already or `owner` is no window of the calling
/// thread.
bool MayActivateDisplay(const Display* display, HWND owner);

/// Makes the calling thread's queue wait for this display's events. From here on other threads wake it.
void ActivateDisplay(Display* display);

/// After this no thread calls the display any more.
void DeactivateDisplay(Display* display);

}  // namespace korvane
