#include <algorithm>
#include <chrono>

#include "platform/posix/LastError.h"
#include "platform/posix/queue/Send.h"
#include "platform/posix/remote/RemoteWindows.h"
#include "platform/posix/remote/receive/Station.h"
#include "platform/posix/window/Classes.h"

namespace korvane {
namespace {

HWND NewHandle(Session& session) {
    do {
        if (++session.lastHandle >= kRemoteHandleBit)
            session.lastHandle = 0x10001;
    } while (session.windows.count(session.lastHandle) != 0);
    return reinterpret_cast<HWND>(session.lastHandle);
}

HWND FirstChild(HWND parent) {
    Session& session = TheSession();
    const std::lock_guard<std::mutex> lock(session.mutex);
    for (const auto& [handle, window] : session.windows) {
        if (window->parent == parent && !window->ending)
            return window->handle;
    }
    return nullptr;
}

// Marks a window as ending. False when it is no window of the calling thread or is ending already.
bool BeginEnd(HWND handle) {
    Session& session = TheSession();
    const std::lock_guard<std::mutex> lock(session.mutex);
    Window* window = FindWindowOf(session, handle);
    if (!window)
        return Fail(ERROR_INVALID_WINDOW_HANDLE);
    if (window->queue != CurrentQueueIfAny() || window->ending)
        return Fail(ERROR_ACCESS_DENIED);
    window->ending = true;
    return true;
}

void Remove(HWND handle) {
    Session& session = TheSession();
    bool wasTopLevel = false;
    {
        const std::lock_guard<std::mutex> lock(session.mutex);
        if (Window* window = FindWindowOf(session, handle)) {
            wasTopLevel = (window->style & WS_CHILD) == 0;
            RemoveWindow(session, *window);
        }
    }
    if (wasTopLevel)
        PublishWindows();
}

std::uint64_t SteadyNanoseconds() {
    using std::chrono::steady_clock;
    const auto now = steady_clock::now().time_since_epoch();
    return static_cast<std::uint64_t>(std::chrono::duration_cast<std::chrono::nanoseconds>(now).count());
}

// What WM_CREATE may have done, such as making children, is undone as for any window.
HWND Abandon(HWND window) {
    DestroyWindow(window);
    return nullptr;
}

}  // namespace
}  // namespace korvane

using namespace korvane;

extern "C" {

HWND CreateWindowExW(DWORD exStyle, LPCWSTR className, LPCWSTR title, DWORD style, int x, int y, int width,
                     int height, HWND parent, HMENU menu, HINSTANCE instance, LPVOID parameter) {
    if (x == CW_USEDEFAULT)
        x = y = 0;
    if (width == CW_USEDEFAULT)
        width = height = 0;
    width = std::max(width, 0);
    height = std::max(height, 0);
    ThreadQueue& queue = CurrentQueue();
    Session& session = TheSession();
    HWND handle = nullptr;
    {
        const std::lock_guard<std::mutex> lock(session.mutex);
        const WindowClass* windowClass = FindClass(session, className);
        const Window* above = FindWindowOf(session, parent);
        if (!windowClass) {
            SetLastError(ERROR_CANNOT_FIND_WND_CLASS);
            return nullptr;
        }
        if (parent ? !above || above->queue != &queue || above->ending : (style & WS_CHILD) != 0) {
            SetLastError(ERROR_INVALID_WINDOW_HANDLE);
            return nullptr;
        }
        handle = NewHandle(session);
        auto window = std::make_unique<Window>();
        window->handle = handle;
        window->queue = &queue;
        window->windowClass = windowClass;
        window->procedure = windowClass->procedure;
        window->title = title ? title : L"";
        window->parent = parent;
        window->born = SteadyNanoseconds();
        window->style = style;
        window->x = x;
        window->y = y;
        window->width = width;
        window->height = height;
        session.windows.emplace(session.lastHandle, std::move(window));
    }
    if ((style & WS_CHILD) == 0)
        PublishWindows();
    const CREATESTRUCTW create{
        parameter, instance,  menu,   parent, height, width, y, x, static_cast<LONG>(style),
        title,     className, exStyle};
    const auto createParam = reinterpret_cast<LPARAM>(&create);
    if (CallProcedure(handle, WM_NCCREATE, 0, createParam) == 0)
        return Abandon(handle);
    if (CallProcedure(handle, WM_CREATE, 0, createParam) == -1)
        return Abandon(handle);
    if ((style & WS_VISIBLE) != 0)
        ShowWindow(handle, SW_SHOW);
    return IsWindow(handle) ? handle : nullptr;
}

BOOL DestroyWindow(HWND window) {
    if (!BeginEnd(window))
        return FALSE;
    CallProcedure(window, WM_DESTROY, 0, 0);
    while (const HWND child = FirstChild(window))
        DestroyWindow(child);
    CallProcedure(window, WM_NCDESTROY, 0, 0);
    Remove(window);
    return TRUE;
}

BOOL IsWindow(HWND window) {
    if (IsRemoteHandle(window))
        return NamesOfRemoteWindow(window).has_value();
    Session& session = TheSession();
    const std::lock_guard<std::mutex> lock(session.mutex);
    return FindWindowOf(session, window) != nullptr;
}
}
