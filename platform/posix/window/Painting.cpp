#include "platform/posix/LastError.h"
#include "platform/posix/queue/Session.h"

namespace korvane {
namespace {

// Does `work` with the window under the session's mutex; FALSE for a dead handle.
template <typename Work>
BOOL WithWindow(HWND handle, const Work& work) {
    Session& session = TheSession();
    const std::lock_guard<std::mutex> lock(session.mutex);
    Window* window = FindWindowOf(session, handle);
    return window ? work(session, *window) : Fail(ERROR_INVALID_WINDOW_HANDLE);
}

void Invalidate(Session& session, Window& window, const RECT* rect) {
    if (!window.visible)
        return;
    window.update.Add(rect, window.width, window.height);
    if (!window.update.IsEmpty())
        WakeQueue(session, *window.queue);
}

}  // namespace
}  // namespace korvane

using namespace korvane;

extern "C" {

BOOL InvalidateRect(HWND window, const RECT* rect, BOOL) {
    return WithWindow(window, [rect](Session& session, Window& found) {
        Invalidate(session, found, rect);
        return TRUE;
    });
}

BOOL ValidateRect(HWND window, const RECT* rect) {
    return WithWindow(window, [rect](Session&, Window& found) {
        found.update.Remove(rect);
        return TRUE;
    });
}

BOOL GetUpdateRect(HWND window, RECT* rect, BOOL) {
    return WithWindow(window, [rect](Session&, Window& found) {
        if (rect)
            *rect = found.update.Rect();
        return found.update.IsEmpty() ? FALSE : TRUE;
    });
}

BOOL UpdateWindow(HWND window) {
    BOOL needed = FALSE;
    const BOOL exists = WithWindow(window, [&needed](Session& session, Window& found) {
        needed = !found.update.IsEmpty() && IsShownWithParents(session, found);
        return TRUE;
    });
    if (needed)
        SendMessageW(window, WM_PAINT, 0, 0);
    return exists;
}

BOOL ShowWindow(HWND window, int command) {
    return WithWindow(window, [command](Session& session, Window& found) {
        const bool before = found.visible;
        found.visible = command != SW_HIDE;
        found.style = found.visible ? found.style | WS_VISIBLE : found.style & ~WS_VISIBLE;
        if (!found.visible)
            found.update.Remove(nullptr);
        else if (!before)
            Invalidate(session, found, nullptr);
        return before ? TRUE : FALSE;
    });
}

BOOL IsWindowVisible(HWND window) {
    return WithWindow(window, [](Session& session, Window& found) {
        return IsShownWithParents(session, found) ? TRUE : FALSE;
    });
}

BOOL GetClientRect(HWND window, RECT* rect) {
    if (!rect)
        return Fail(ERROR_INVALID_PARAMETER);
    return WithWindow(window, [rect](Session&, Window& found) {
        *rect = {0, 0, found.width, found.height};
        return TRUE;
    });
}
}
