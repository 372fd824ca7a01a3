#pragma once

#include "platform/windows/queue/ThreadQueue.h"

namespace korvane {

enum class WaitEnd { LookAgain, NothingWillCome };

/// Waits under the manual clock until the calling thread's queue may have something new.
WaitEnd WaitUnderManualClock(ThreadQueue& queue);

}  // namespace korvane
