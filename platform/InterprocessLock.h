#pragma once

#include <memory>

#include "platform/Export.h"

namespace korvane {

/// A lock among the processes of one user and device root, and among the threads of each, held as long as the
/// object lives, which ends on the thread that made it. When a process dies the system frees what it held.
class KORVANE_API InterprocessLock {
  public:
    /// Waits up to `timeoutMs` of real time. Names are those of MapSharedMemory; locks and regions of the
    /// same name have nothing to do with each other.
    InterprocessLock(const wchar_t* name, unsigned timeoutMs);
    ~InterprocessLock();
    InterprocessLock(const InterprocessLock&) = delete;
    InterprocessLock& operator=(const InterprocessLock&) = delete;

    /// False when another holder kept it all the time, and when there can be no such lock.
    bool IsHeld() const;

  private:
    struct Hold;
    std::unique_ptr<Hold> hold_;
};

}  // namespace korvane
