#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <sys/stat.h>

#include "platform/posix/files/Descriptor.h"

namespace korvane {

/// A named object of the system's shared memory that only this user can open, locked while this lives.
class SharedObject {
  public:
    /// Makes the object, empty, where there is none, and waits up to `timeoutMs` for its lock. `kind` parts
    /// objects of one name. Null when the name is none, the object belongs to another user or cannot be made,
    /// and when somebody else held the lock all the time.
    static std::unique_ptr<SharedObject> Lock(const char* kind, const wchar_t* name, unsigned timeoutMs);
    ~SharedObject();
    SharedObject(const SharedObject&) = delete;
    SharedObject& operator=(const SharedObject&) = delete;

    int Number() const { return file_.Number(); }

  private:
    explicit SharedObject(int number) : file_(number) {}

    bool LockUntil(std::chrono::steady_clock::time_point deadline) const;

    Descriptor file_;
};

/// What the names of all shared objects of the device begin with.
std::string SharedObjectPrefix();

}  // namespace korvane
