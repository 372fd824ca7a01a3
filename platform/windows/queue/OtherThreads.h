#pragma once

namespace korvane {

/// Whether a thread besides the calling one runs in this process. Those that the system keeps for itself do
/// not count.
bool OtherThreadsExist();

}  // namespace korvane
