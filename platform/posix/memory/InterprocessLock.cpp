#include "platform/InterprocessLock.h"

#include "platform/posix/memory/SharedObject.h"

namespace korvane {

struct InterprocessLock::Hold {
    std::unique_ptr<SharedObject> object;
};

InterprocessLock::InterprocessLock(const wchar_t* name, unsigned timeoutMs)
    : hold_(new Hold{SharedObject::Lock("lock", name, timeoutMs)}) {}

InterprocessLock::~InterprocessLock() = default;

bool InterprocessLock::IsHeld() const {
    return hold_->object != nullptr;
}

}  // namespace korvane
