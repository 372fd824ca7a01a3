#include "platform/InterprocessLock.h"

#include "platform/windows/memory/NamedMutex.h"
#include "platform/windows/memory/ObjectName.h"

namespace korvane {

struct InterprocessLock::Hold {
    std::unique_ptr<NamedMutex> mutex;
};

InterprocessLock::InterprocessLock(const wchar_t* name, unsigned timeoutMs) : hold_(new Hold) {
    const std::wstring objectName = ObjectName(L"lock", name);
    if (!objectName.empty())
        hold_->mutex = NamedMutex::Lock(objectName, timeoutMs);
}

InterprocessLock::~InterprocessLock() = default;

bool InterprocessLock::IsHeld() const {
    return hold_->mutex != nullptr;
}

}  // namespace korvane
