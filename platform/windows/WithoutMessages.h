#pragma once

#include "platform/windows/System.h"

namespace korvane {

/// While it lives, a library that is damaged or lacks another is an answer to the caller and no message to
/// the user.
class WithoutMessages {
  public:
    WithoutMessages() { SetThreadErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX, &before_); }
    ~WithoutMessages() { SetThreadErrorMode(before_, nullptr); }
    WithoutMessages(const WithoutMessages&) = delete;
    WithoutMessages& operator=(const WithoutMessages&) = delete;

  private:
    DWORD before_ = 0;
};

}  // namespace korvane
