#pragma once

#include "platform/posix/coredll/Types.h"

extern "C" {

/// Starts a short tone, the same whatever its kind, and returns. FALSE where there is no audio device, and
/// under the manual clock, in which no time passes that could be heard. The first call of a process opens the
/// device: if that takes longer than a quarter of a second, it goes on behind the caller's back and the call
/// is TRUE. Any thread may call it.
KORVANE_API BOOL MessageBeep(UINT kind);
}
