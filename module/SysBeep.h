#pragma once

#include "platform/Export.h"

extern "C" {

/// Asks the head unit's main application to sound the key beep. Does nothing when its window did not exist at
/// the first call in this process. To be called on the user interface's thread.
KORVANEEX_API void SysBeep();
}
