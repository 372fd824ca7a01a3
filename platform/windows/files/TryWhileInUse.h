#pragma once

#include "platform/windows/System.h"

namespace korvane {

/// How long a file is waited for that somebody has open.
constexpr ULONGLONG kInUseMs = 500;

/// Calls `attempt` until it succeeds, or fails for another reason than that somebody has the file open, or
/// kInUseMs have passed. A reader or writer has it for a moment, and so have programs that look into
/// every file. The system may say "access denied" of such a file, as it does of one that is never to be had:
/// `deniedMs` is how long that is believed to be passing. Returns whether it succeeded.
template <class Attempt>
bool TryWhileInUse(ULONGLONG deniedMs, const Attempt& attempt) {
    const ULONGLONG start = GetTickCount64();
    while (!attempt()) {
        const DWORD error = GetLastError();
        const ULONGLONG limit = error == ERROR_SHARING_VIOLATION ? kInUseMs
                                : error == ERROR_ACCESS_DENIED   ? deniedMs
                                                                 : 0;
        // A pause takes a tick of the system's clock, however short it is.
        if (GetTickCount64() - start >= limit)
            return false;
        SleepEx(1, FALSE);
        SetLastError(error);
    }
    return true;
}

}  // namespace korvane
