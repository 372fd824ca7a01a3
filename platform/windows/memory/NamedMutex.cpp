#include "platform/windows/memory/NamedMutex.h"

#include <set>
#include <utility>

namespace korvane {
namespace {

// The system would let a thread in again that has the mutex already.
std::set<std::wstring>& HeldByThisThread() {
    thread_local std::set<std::wstring> names;
    return names;
}

}  // namespace

std::unique_ptr<NamedMutex> NamedMutex::Lock(const std::wstring& name, unsigned timeoutMs) {
    if (HeldByThisThread().count(name) != 0) {
        SleepEx(timeoutMs, FALSE);
        return nullptr;
    }
    Handle mutex(CreateMutexW(nullptr, FALSE, name.c_str()));
    if (!mutex.IsOpen())
        return nullptr;
    const DWORD result = WaitForSingleObject(mutex.Get(), timeoutMs);
    // Abandoned is what a process had that has died.
    if (result != WAIT_OBJECT_0 && result != WAIT_ABANDONED)
        return nullptr;
    return std::unique_ptr<NamedMutex>(new NamedMutex(name, std::move(mutex)));
}

NamedMutex::NamedMutex(std::wstring name, Handle mutex) : name_(std::move(name)), mutex_(std::move(mutex)) {
    HeldByThisThread().insert(name_);
}

NamedMutex::~NamedMutex() {
    HeldByThisThread().erase(name_);
    ReleaseMutex(mutex_.Get());
}

}  // namespace korvane
