#pragma once

#include "platform/queue/MessageFilter.h"

namespace korvane {

struct Filter : MessageFilter {
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
