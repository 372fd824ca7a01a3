#pragma once

#include "platform/coredll.h"

namespace korvane {

/// Stands for messages that were posted to no window.
inline const HWND kNoWindow = reinterpret_cast<HWND>(static_cast<INT_PTR>(-1));

/// Which messages a retrieval takes: those of a window and its children, of any (null), or of kNoWindow; the
/// numbers `first` to `last`, or all (0, 0).
struct MessageFilter {
    HWND window;
    UINT first;
    UINT last;

    bool AcceptsNumber(UINT message) const {
        return (first == 0 && last == 0) || (message >= first && message <= last);
    }
};

}  // namespace korvane
