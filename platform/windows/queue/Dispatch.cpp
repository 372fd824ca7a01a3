#include "platform/windows/LastError.h"
#include "platform/windows/queue/ThreadQueue.h"

namespace korvane::desktop {

LRESULT DispatchMessageW(const MSG* message) {
    if (!message)
        return Refuse(ERROR_INVALID_PARAMETER);
    if (message->message != WM_TIMER || message->lParam == 0)
        return ::DispatchMessageW(message);
    ThreadQueue& queue = CurrentQueue();
    const Timer* timer = queue.timers.Find(message->hwnd, message->wParam);
    if (timer && reinterpret_cast<LPARAM>(timer->procedure) == message->lParam) {
        timer->procedure(message->hwnd, WM_TIMER, message->wParam, desktop::GetTickCount());
        return 0;
    }
    // Not one of the program's: the system knows whether it is one of its own.
    return queue.followsManualClock ? 0 : ::DispatchMessageW(message);
}

}  // namespace korvane::desktop
