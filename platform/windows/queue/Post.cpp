#include "platform/Simulation.h"
#include "platform/queue/PointerMessage.h"
#include "platform/windows/LastError.h"
#include "platform/windows/queue/ThreadQueue.h"

namespace korvane {
namespace {

// The thread of a window of this process, else 0.
DWORD OwnThreadOf(HWND window) {
    DWORD process = 0;
    const DWORD thread = GetWindowThreadProcessId(window, &process);
    return process == GetCurrentProcessId() ? thread : 0;
}

// Of windows that end, the system drops the messages itself.
void ForgetDeadWindows(MessageRing& stamps) {
    for (std::size_t i = stamps.Size(); i > 0; --i) {
        const HWND window = stamps.At(i - 1).hwnd;
        if (window && !IsWindow(window))
            stamps.Erase(i - 1);
    }
}

// Posts to a window of this process, or to the calling thread, and keeps the time until the message is taken.
bool PostStamped(DWORD thread, const MSG& message) {
    // Two threads that post the same get their times in the order of their messages.
    const std::lock_guard<std::mutex> lock(QueueMutex());
    if (!PostMessageW(message.hwnd, message.message, message.wParam, message.lParam))
        return false;
    MessageRing& stamps = QueueOf(thread).stamps;
    if (stamps.Push(message))
        return true;
    ForgetDeadWindows(stamps);
    if (!stamps.Push(message)) {
        stamps.Erase(0);
        stamps.Push(message);
    }
    return true;
}

bool Post(HWND window, UINT message, WPARAM wParam, LPARAM lParam, DWORD time) {
    const DWORD thread = window ? OwnThreadOf(window) : GetCurrentThreadId();
    if (thread == 0 || !IsManualClock())
        return PostMessageW(window, message, wParam, lParam) != 0;
    POINT pointer{};
    {
        const std::lock_guard<std::mutex> lock(QueueMutex());
        pointer = LastPointer();
    }
    return PostStamped(thread, {window, message, wParam, lParam, time, pointer});
}

}  // namespace

bool PostInputAt(HWND window, UINT message, WPARAM wParam, LPARAM lParam, DWORD time) {
    if (CarriesPointers(message))
        return Refuse(ERROR_MESSAGE_SYNC_ONLY);
    const DWORD thread = OwnThreadOf(window);
    if (thread == 0)
        return Refuse(ERROR_INVALID_WINDOW_HANDLE);
    if (!IsManualClock())
        return PostMessageW(window, message, wParam, lParam) != 0;
    const bool isPointer = message >= WM_MOUSEFIRST && message <= WM_MOUSELAST;
    POINT position{static_cast<SHORT>(LOWORD(lParam)), static_cast<SHORT>(HIWORD(lParam))};
    if (isPointer)
        ClientToScreen(window, &position);
    const std::lock_guard<std::mutex> lock(QueueMutex());
    if (isPointer)
        LastPointer() = position;
    ThreadQueue& queue = QueueOf(thread);
    const MSG posted{window, message, wParam, lParam, time, LastPointer()};
    MSG* newest = queue.input.Size() > 0 ? &queue.input.At(queue.input.Size() - 1) : nullptr;
    if (newest && message == WM_MOUSEMOVE && newest->message == WM_MOUSEMOVE && newest->hwnd == window)
        *newest = posted;
    else if (!queue.input.Push(posted))
        return Refuse(ERROR_NOT_ENOUGH_QUOTA);
    SetEvent(queue.changed);
    return true;
}

bool PostInput(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return PostInputAt(window, message, wParam, lParam, TickCount());
}

bool PostAt(HWND window, UINT message, WPARAM wParam, LPARAM lParam, DWORD time) {
    return Post(window, message, wParam, lParam, time);
}

namespace desktop {

BOOL PostMessageW(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return Post(window, message, wParam, lParam, TickCount());
}

}  // namespace desktop
}  // namespace korvane
