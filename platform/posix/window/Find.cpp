#include <optional>
#include <vector>

#include "platform/CaseFold.h"
#include "platform/posix/LastError.h"
#include "platform/posix/remote/RemoteWindows.h"
#include "platform/posix/window/Classes.h"

namespace korvane {
namespace {

bool IsTopLevel(const Window& window) {
    return (window.style & WS_CHILD) == 0;
}

// A class may be named by its atom, which means something in this process only. Nothing for an atom of none.
std::optional<std::wstring> NameOfClass(const Session& session, LPCWSTR nameOrAtom) {
    if (const WindowClass* windowClass = FindClass(session, nameOrAtom))
        return windowClass->name;
    if (IsAtom(nameOrAtom))
        return std::nullopt;
    return nameOrAtom;
}

HWND FindOwn(const Session& session, const wchar_t* className, LPCWSTR title) {
    for (auto at = session.windows.rbegin(); at != session.windows.rend(); ++at) {
        const Window& window = *at->second;
        if (IsTopLevel(window) && (!className || EqualFolded(window.windowClass->name, className)) &&
            (!title || EqualFolded(window.title, title)))
            return window.handle;
    }
    return nullptr;
}

std::vector<HWND> OwnTopLevelWindows() {
    Session& session = TheSession();
    const std::lock_guard<std::mutex> lock(session.mutex);
    std::vector<HWND> windows;
    for (auto at = session.windows.rbegin(); at != session.windows.rend(); ++at) {
        if (IsTopLevel(*at->second))
            windows.push_back(at->second->handle);
    }
    return windows;
}

}  // namespace
}  // namespace korvane

using namespace korvane;

extern "C" {

HWND FindWindowW(LPCWSTR className, LPCWSTR title) {
    std::optional<std::wstring> name;
    {
        Session& session = TheSession();
        const std::lock_guard<std::mutex> lock(session.mutex);
        if (className && !(name = NameOfClass(session, className)))
            return Fail(ERROR_CANNOT_FIND_WND_CLASS), nullptr;
        if (const HWND own = FindOwn(session, name ? name->c_str() : nullptr, title))
            return own;
    }
    const HWND found = FindRemoteWindow(name ? name->c_str() : nullptr, title);
    if (!found)
        SetLastError(ERROR_FILE_NOT_FOUND);
    return found;
}

BOOL EnumWindows(WNDENUMPROC procedure, LPARAM parameter) {
    if (!procedure)
        return Fail(ERROR_INVALID_PARAMETER);
    std::vector<HWND> windows = OwnTopLevelWindows();
    const std::vector<HWND> others = RemoteWindows();
    windows.insert(windows.end(), others.begin(), others.end());
    for (const HWND window : windows) {
        if (IsWindow(window) && !procedure(window, parameter))
            return FALSE;
    }
    return TRUE;
}
}
