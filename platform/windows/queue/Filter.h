#pragma once

#include "platform/coredll.h"

namespace korvane {

/// Stands for messages that were posted to no window.
inline const HWND kNoWindow = reinterpret_cast<HWND>(static_cast<INT_PTR>(-1));

/// Which messages a retrieval takes: those of a window and its children, of any (null), or of kNoWindow; the
/// numbers `first` to `last`, or all (0, 0).
struct Filter {
    HWND window;
    UINT first;
    UINT last;

    bool AcceptsNumber(UINT message) const {
        return (first == 0 && last == 0) || (message >= first && message <= last);
    }
    bool AcceptsWindow(HWND target) const {
        if (!window || window == target)
            return true;
        return window == kNoWindow ? !target : IsChild(window, target) != 0;
    }

    /// Whether the calling thread may ask for this window.
    bool IsValid() const {
        return !window || window == kNoWindow ||
               GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId();
    }
};

}  // namespace korvane
