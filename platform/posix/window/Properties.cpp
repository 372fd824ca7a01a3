#include <algorithm>

#include "platform/posix/LastError.h"
#include "platform/posix/remote/RemoteWindows.h"
#include "platform/posix/remote/receive/Station.h"
#include "platform/posix/window/Classes.h"

namespace korvane {
namespace {

int CopyText(const std::wstring& text, LPWSTR target, int capacity) {
    if (!target || capacity <= 0)
        return 0;
    const std::size_t count = std::min(text.size(), static_cast<std::size_t>(capacity) - 1);
    std::copy_n(text.data(), count, target);
    target[count] = L'\0';
    return static_cast<int>(count);
}

LRESULT SetTitle(HWND handle, LPCWSTR text) {
    const std::wstring title = text ? text : L"";
    Session& session = TheSession();
    {
        const std::lock_guard<std::mutex> lock(session.mutex);
        Window* window = FindWindowOf(session, handle);
        if (!window)
            return Fail(ERROR_INVALID_WINDOW_HANDLE);
        if (window->title == title)
            return TRUE;
        window->title = title;
    }
    PublishWindows();
    return TRUE;
}

std::wstring Title(HWND handle) {
    Session& session = TheSession();
    const std::lock_guard<std::mutex> lock(session.mutex);
    const Window* window = FindWindowOf(session, handle);
    return window ? window->title : std::wstring();
}

LONG_PTR FromProcedure(WNDPROC procedure) {
    return reinterpret_cast<LONG_PTR>(reinterpret_cast<void*>(procedure));
}

LONG_PTR PropertyOf(const Window& window, int index) {
    switch (index) {
        case GWLP_WNDPROC:
            return FromProcedure(window.procedure);
        case GWL_STYLE:
            return static_cast<LONG>(window.style);
        case GWLP_USERDATA:
            return window.userData;
        default:
            return Fail(ERROR_INVALID_INDEX);
    }
}

}  // namespace
}  // namespace korvane

using namespace korvane;

extern "C" {

LRESULT DefWindowProcW(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_NCCREATE:
            return TRUE;
        case WM_CLOSE:
            DestroyWindow(window);
            return 0;
        case WM_PAINT:
            ValidateRect(window, nullptr);
            return 0;
        case WM_SETTEXT:
            return SetTitle(window, reinterpret_cast<LPCWSTR>(lParam));
        case WM_GETTEXT:
            return CopyText(Title(window), reinterpret_cast<LPWSTR>(lParam),
                            static_cast<int>(std::min<WPARAM>(wParam, 0x7FFFFFFF)));
        case WM_GETTEXTLENGTH:
            return static_cast<LRESULT>(Title(window).size());
        default:
            return 0;
    }
}

BOOL SetWindowTextW(HWND window, LPCWSTR text) {
    if (!IsWindow(window))
        return Fail(ERROR_INVALID_WINDOW_HANDLE);
    return SendMessageW(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text)) != 0;
}

int GetWindowTextW(HWND window, LPWSTR text, int capacity) {
    if (!text || capacity <= 0)
        return 0;
    text[0] = L'\0';
    if (IsRemoteHandle(window)) {
        const std::optional<RemoteWindowNames> names = NamesOfRemoteWindow(window);
        return names ? CopyText(names->title, text, capacity) : Fail(ERROR_INVALID_WINDOW_HANDLE);
    }
    return static_cast<int>(
        SendMessageW(window, WM_GETTEXT, static_cast<WPARAM>(capacity), reinterpret_cast<LPARAM>(text)));
}

int GetClassNameW(HWND window, LPWSTR name, int capacity) {
    if (IsRemoteHandle(window)) {
        const std::optional<RemoteWindowNames> names = NamesOfRemoteWindow(window);
        return names ? CopyText(names->className, name, capacity) : Fail(ERROR_INVALID_WINDOW_HANDLE);
    }
    Session& session = TheSession();
    const std::lock_guard<std::mutex> lock(session.mutex);
    const Window* found = FindWindowOf(session, window);
    return found ? CopyText(found->windowClass->name, name, capacity) : Fail(ERROR_INVALID_WINDOW_HANDLE);
}

LONG_PTR GetWindowLongPtrW(HWND window, int index) {
    Session& session = TheSession();
    const std::lock_guard<std::mutex> lock(session.mutex);
    const Window* found = FindWindowOf(session, window);
    return found ? PropertyOf(*found, index) : Fail(ERROR_INVALID_WINDOW_HANDLE);
}

LONG_PTR SetWindowLongPtrW(HWND window, int index, LONG_PTR value) {
    Session& session = TheSession();
    std::unique_lock<std::mutex> lock(session.mutex);
    Window* found = FindWindowOf(session, window);
    if (!found)
        return Fail(ERROR_INVALID_WINDOW_HANDLE);
    const LONG_PTR before = PropertyOf(*found, index);
    if (index == GWLP_WNDPROC && value != 0)
        found->procedure = reinterpret_cast<WNDPROC>(reinterpret_cast<void*>(value));
    else if (index == GWL_STYLE)
        found->style = static_cast<DWORD>(value);
    else if (index == GWLP_USERDATA)
        found->userData = value;
    lock.unlock();
    if (index == GWL_STYLE && ((before ^ value) & WS_CHILD) != 0)
        PublishWindows();
    return before;
}
}
