#include "platform/posix/window/Classes.h"

#include <algorithm>

#include "platform/CaseFold.h"
#include "platform/posix/LastError.h"

namespace korvane {
namespace {

constexpr std::size_t kLongestName = 256;
constexpr ATOM kLastAtom = 0xFFFF;

}  // namespace

bool IsAtom(LPCWSTR nameOrAtom) {
    return (reinterpret_cast<UINT_PTR>(nameOrAtom) >> 16) == 0;
}

const WindowClass* FindClass(const Session& session, LPCWSTR nameOrAtom) {
    const bool isAtom = IsAtom(nameOrAtom);
    const auto atom = static_cast<ATOM>(reinterpret_cast<UINT_PTR>(nameOrAtom));
    for (const std::unique_ptr<WindowClass>& candidate : session.classes) {
        if (isAtom ? candidate->atom == atom : EqualFolded(candidate->name, nameOrAtom))
            return candidate.get();
    }
    return nullptr;
}

}  // namespace korvane

using namespace korvane;

extern "C" {

ATOM RegisterClassW(const WNDCLASSW* windowClass) {
    if (!windowClass || !windowClass->lpfnWndProc || IsAtom(windowClass->lpszClassName))
        return Fail(ERROR_INVALID_PARAMETER);
    const std::size_t length = std::wcslen(windowClass->lpszClassName);
    if (length == 0 || length > kLongestName)
        return Fail(ERROR_INVALID_PARAMETER);
    Session& session = TheSession();
    const std::lock_guard<std::mutex> lock(session.mutex);
    if (FindClass(session, windowClass->lpszClassName))
        return Fail(ERROR_CLASS_ALREADY_EXISTS);
    if (session.lastAtom == kLastAtom)
        return Fail(ERROR_NOT_ENOUGH_MEMORY);
    const ATOM atom = ++session.lastAtom;
    session.classes.push_back(std::make_unique<WindowClass>(
        WindowClass{windowClass->lpszClassName, windowClass->lpfnWndProc, atom}));
    return atom;
}

BOOL UnregisterClassW(LPCWSTR className, HINSTANCE) {
    Session& session = TheSession();
    const std::lock_guard<std::mutex> lock(session.mutex);
    const WindowClass* found = FindClass(session, className);
    if (!found)
        return Fail(ERROR_CLASS_DOES_NOT_EXIST);
    for (const auto& [handle, window] : session.windows) {
        if (window->windowClass == found)
            return Fail(ERROR_CLASS_HAS_WINDOWS);
    }
    session.classes.erase(
        std::find_if(session.classes.begin(), session.classes.end(),
                     [found](const std::unique_ptr<WindowClass>& owned) { return owned.get() == found; }));
    return TRUE;
}
}
