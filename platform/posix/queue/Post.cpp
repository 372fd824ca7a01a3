#include <algorithm>

#include "platform/Simulation.h"
#include "platform/posix/LastError.h"
#include "platform/posix/queue/Session.h"
#include "platform/posix/remote/RemoteWindows.h"
#include "platform/queue/PointerMessage.h"

namespace korvane {
namespace {

bool Post(HWND window, UINT message, WPARAM wParam, LPARAM lParam, DWORD time) {
    if (CarriesPointers(message))
        return Fail(ERROR_MESSAGE_SYNC_ONLY);
    ThreadQueue* queue = window ? nullptr : &CurrentQueue();
    Session& session = TheSession();
    const std::lock_guard<std::mutex> lock(session.mutex);
    if (window) {
        const Window* found = FindWindowOf(session, window);
        if (!found)
            return Fail(ERROR_INVALID_WINDOW_HANDLE);
        queue = found->queue;
    }
    if (!queue->posted.Push({window, message, wParam, lParam, time, session.pointer}))
        return Fail(ERROR_NOT_ENOUGH_QUOTA);
    WakeQueue(session, *queue);
    return true;
}

// The part of the coordinates of a pointer message, which may be negative.
LONG Coordinate(WORD part) {
    return static_cast<std::int16_t>(part);
}

POINT ScreenPosition(Session& session, const Window& window, LPARAM lParam) {
    POINT position{Coordinate(LOWORD(lParam)), Coordinate(HIWORD(lParam))};
    for (const Window* at = &window; at;
         at = (at->style & WS_CHILD) != 0 ? FindWindowOf(session, at->parent) : nullptr) {
        position.x += at->x;
        position.y += at->y;
    }
    return position;
}

}  // namespace

bool PostInputAt(HWND window, UINT message, WPARAM wParam, LPARAM lParam, DWORD time) {
    if (CarriesPointers(message))
        return Fail(ERROR_MESSAGE_SYNC_ONLY);
    Session& session = TheSession();
    const std::lock_guard<std::mutex> lock(session.mutex);
    const Window* found = FindWindowOf(session, window);
    if (!found)
        return Fail(ERROR_INVALID_WINDOW_HANDLE);
    if (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST)
        session.pointer = ScreenPosition(session, *found, lParam);
    const MSG posted{window, message, wParam, lParam, time, session.pointer};
    MessageRing& input = found->queue->input;
    MSG* newest = input.Size() > 0 ? &input.At(input.Size() - 1) : nullptr;
    if (newest && message == WM_MOUSEMOVE && newest->message == WM_MOUSEMOVE && newest->hwnd == window)
        *newest = posted;
    else if (!input.Push(posted))
        return Fail(ERROR_NOT_ENOUGH_QUOTA);
    WakeQueue(session, *found->queue);
    return true;
}

bool PostInput(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return PostInputAt(window, message, wParam, lParam, GetTickCount());
}

bool PostAt(HWND window, UINT message, WPARAM wParam, LPARAM lParam, DWORD time) {
    return Post(window, message, wParam, lParam, time);
}

}  // namespace korvane

using namespace korvane;

extern "C" {

BOOL PostMessageW(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (IsRemoteHandle(window))
        return PostToRemoteWindow(window, message, wParam, lParam);
    return Post(window, message, wParam, lParam, GetTickCount());
}

void PostQuitMessage(int exitCode) {
    ThreadQueue& queue = CurrentQueue();
    const std::lock_guard<std::mutex> lock(TheSession().mutex);
    queue.quitAsked = true;
    queue.exitCode = exitCode;
}
}
