#include "platform/windows/queue/OtherThreads.h"

#include "platform/windows/Handle.h"

// Needs the types of the system's header.
#include <tlhelp32.h>

namespace korvane {
namespace {

using QueryThread = LONG(WINAPI*)(HANDLE thread, int what, void* data, ULONG size, ULONG* written);

// The loader and the thread pool of the system have threads of their own, which start in its lowest library.
bool IsTheSystems(DWORD threadId) {
    constexpr int kStartAddress = 9;
    static const HMODULE system = GetModuleHandleW(L"ntdll.dll");
    static const auto query = reinterpret_cast<QueryThread>(
        reinterpret_cast<void*>(GetProcAddress(system, "NtQueryInformationThread")));
    const Handle thread(OpenThread(THREAD_QUERY_INFORMATION, FALSE, threadId));
    // It has ended meanwhile.
    if (!thread.IsOpen())
        return true;
    void* start = nullptr;
    HMODULE module = nullptr;
    return query && query(thread.Get(), kStartAddress, &start, sizeof start, nullptr) == 0 &&
           GetModuleHandleExW(
               GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
               static_cast<const wchar_t*>(start), &module) != 0 &&
           module == system;
}

}  // namespace

bool OtherThreadsExist() {
    const Handle snapshot(CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0));
    THREADENTRY32 entry{};
    entry.dwSize = sizeof entry;
    for (BOOL more = snapshot.IsOpen() && Thread32First(snapshot.Get(), &entry); more;
         more = Thread32Next(snapshot.Get(), &entry)) {
        if (entry.th32OwnerProcessID == GetCurrentProcessId() && entry.th32ThreadID != GetCurrentThreadId() &&
            !IsTheSystems(entry.th32ThreadID))
            return true;
    }
    return false;
}

}  // namespace korvane
