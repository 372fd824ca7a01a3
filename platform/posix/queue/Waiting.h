#pragma once

#include <mutex>

#include "platform/posix/queue/Session.h"

namespace korvane {

enum class WaitEnd { LookAgain, NothingWillCome };

/// Waits until the calling thread's queue may have something new, a timer of it falls due, or the display had
/// events. `lock` holds the session's mutex, before and after.
WaitEnd WaitForWork(std::unique_lock<std::mutex>& lock, Session& session, ThreadQueue& queue);

/// Takes in what the display has, if it is the calling thread's, without waiting.
void PumpDisplay(Session& session, ThreadQueue& queue);

/// The real time's Sleep: takes in the display's events meanwhile, retrieves nothing.
void WaitWithoutRetrieving(DWORD ms);

}  // namespace korvane
