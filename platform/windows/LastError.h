#pragma once

#include "platform/windows/System.h"

namespace korvane {

/// Sets the thread's last error and returns false, which is also FALSE and 0.
inline bool Refuse(DWORD error) {
    SetLastError(error);
    return false;
}

}  // namespace korvane
