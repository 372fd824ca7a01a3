#pragma once

#include <mutex>
#include <string>

namespace korvane {

// The receiving side of this process. It is open while there are top-level windows, and costs nothing before
// the first of them. Where the runtime folder cannot be used, it stays closed. Any thread may call these,
// without the session's mutex unless told otherwise.

/// Lets other processes find the windows as they are now. To be called after each change of the top-level
/// windows, their titles and their number.
///
/// The windows are those of the device root that is set when the first of them is made. Another root counts
/// once all of them are gone.
void PublishWindows();

/// Takes in everything that other processes have handed over so far.
void TakeInRemoteMessages();

/// To be called before a wait with the session's mutex, which what other processes send must be able to end.
/// False when that took a moment without the mutex, so that the caller must look again first.
bool ReadsRemoteMessages(std::unique_lock<std::mutex>& lock);

/// Whether another process has found a window of this one, and still runs. The session's mutex may be held.
bool IsKnownElsewhere();

/// The number of threads that this side runs.
int RemoteReaders();

/// Empty while there is none.
std::string OwnEndpoint();

/// Around a fork; the session's mutex is taken inside. The child has none of the connections.
void LockStation();
void UnlockStation();
void AbandonStation();

}  // namespace korvane
