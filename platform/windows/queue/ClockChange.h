#pragma once

#include "platform/windows/queue/ThreadQueue.h"

namespace korvane {

/// Brings what the calling thread's queue holds to the clock that is in use. Timers go from the system's
/// keeping into ours with what they had left, and back with a whole period; input goes from ours to
/// the system's queue.
void FollowClock(ThreadQueue& queue, bool manual);

}  // namespace korvane
