#pragma once

#include <windows.h>

namespace korvane {

/// Calls `attempt` until it succeeds, or fails for another reason than that somebody has the file open, or
/// half a second has passed. A reader or writer has it for a moment, and so have programs that look into
/// every file. Returns whether it succeeded.
template <class Attempt>
bool TryWhileInUse(const Attempt& attempt) {
    constexpr int kAttempts = 250;
    constexpr DWORD kPauseMs = 2;
    for (int i = 1;; ++i) {
        if (attempt())
            return true;
        const DWORD error = GetLastError();
        if (i == kAttempts || (error != ERROR_SHARING_VIOLATION && error != ERROR_ACCESS_DENIED))
            return false;
        SleepEx(kPauseMs, FALSE);
        SetLastError(error);
    }
}

}  // namespace korvane
