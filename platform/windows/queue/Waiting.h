#pragma once

#include "platform/windows/queue/ThreadQueue.h"

namespace korvane {

/// LookOnceMore: nothing will come but what came while the wait made sure of it.
enum class WaitEnd { LookAgain, LookOnceMore, NothingWillCome };

/// Waits under the manual clock until the calling thread's queue may have something new.
WaitEnd WaitUnderManualClock(ThreadQueue& queue);

}  // namespace korvane
