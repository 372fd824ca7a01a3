#pragma once

#include "platform/coredll.h"

namespace korvane {

DWORD ErrorFromErrno(int error);

/// Sets the thread's last error and returns false, which is also FALSE and 0.
bool Fail(DWORD error);

}  // namespace korvane
