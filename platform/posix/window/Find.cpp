#include <algorithm>
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

const Window* FindOwn(const Session& session, const wchar_t* className, LPCWSTR title) {
    for (auto at = session.windows.rbegin(); at != session.windows.rend(); ++at) {
        const Window& window = *at->second;
        if (IsTopLevel(window) && (!className || EqualFolded(window.windowClass->name, className)) &&
            (!title || EqualFolded(window.title, title)))
            return &window;
    }
    return nullptr;
}

// Those of all processes, the newest first.
std::vector<TopLevelWindow> TopLevelWindows() {
    std::vector<TopLevelWindow> windows = RemoteWindows();
    {
        Session& session = TheSession();
        const std::lock_guard<std::mutex> lock(session.mutex);
        for (auto at = session.windows.rbegin(); at != session.windows.rend(); ++at) {
            if (IsTopLevel(*at->second))
                windows.push_back({at->second->handle, at->second->born});
        }
    }
    std::stable_sort(
        windows.begin(), windows.end(),
        [](const TopLevelWindow& left, const TopLevelWindow& right) { return left.born > right.born; });
    return windows;
}

}  // namespace
}  // namespace korvane

using namespace korvane;

extern "C" {

HWND FindWindowW(LPCWSTR className, LPCWSTR title) {
    std::optional<std::wstring> name;
    HWND own = nullptr;
    std::uint64_t born = 0;
    {
        Session& session = TheSession();
        const std::lock_guard<std::mutex> lock(session.mutex);
        if (className && !(name = NameOfClass(session, className)))
            return Fail(ERROR_CANNOT_FIND_WND_CLASS), nullptr;
        if (const Window* const window = FindOwn(session, name ? name->c_str() : nullptr, title)) {
            own = window->handle;
            born = window->born;
        }
    }
    const HWND other = FindRemoteWindow(name ? name->c_str() : nullptr, title, born);
    if (!own && !other)
        SetLastError(ERROR_FILE_NOT_FOUND);
    return other ? other : own;
}

BOOL EnumWindows(WNDENUMPROC procedure, LPARAM parameter) {
    if (!procedure)
        return Fail(ERROR_INVALID_PARAMETER);
    for (const TopLevelWindow& window : TopLevelWindows()) {
        if (IsWindow(window.handle) && !procedure(window.handle, parameter))
            return FALSE;
    }
    return TRUE;
}
}
