#pragma once

#include <memory>
#include <string>

#include "platform/windows/Handle.h"

namespace korvane {

/// A mutex of the system, held by the thread that made this as long as it lives. It ends on that thread.
class NamedMutex {
  public:
    /// Waits up to `timeoutMs`. Null when somebody else held it all the time, which may be this thread, and
    /// when there can be no such mutex.
    static std::unique_ptr<NamedMutex> Lock(const std::wstring& name, unsigned timeoutMs);
    ~NamedMutex();
    NamedMutex(const NamedMutex&) = delete;
    NamedMutex& operator=(const NamedMutex&) = delete;

  private:
    NamedMutex(std::wstring name, Handle mutex);

    std::wstring name_;
    Handle mutex_;
};

}  // namespace korvane
