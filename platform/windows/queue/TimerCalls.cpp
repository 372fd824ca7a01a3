#include <algorithm>

#include "platform/Simulation.h"
#include "platform/windows/LastError.h"
#include "platform/windows/queue/SystemTimers.h"

namespace korvane {
namespace {

// The system forgets a window's timers with the window.
void ForgetDeadWindows(ThreadQueue& queue) {
    queue.timers.KillIf([](const Timer& timer) { return timer.window && !IsWindow(timer.window); });
}

bool IsOwnWindow(HWND window) {
    return GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId();
}

}  // namespace

bool NextTimerDue(unsigned& msFromNow) {
    ThreadQueue& queue = CurrentQueue();
    ForgetDeadWindows(queue);
    const Timer* timer = queue.timers.Earliest();
    if (!timer)
        return false;
    msFromNow = static_cast<unsigned>(std::max<Moment>(timer->due - CurrentMoment(), 0));
    return true;
}

namespace desktop {

UINT_PTR SetTimer(HWND window, UINT_PTR id, UINT periodMs, TIMERPROC procedure) {
    if (window && !IsOwnWindow(window))
        return Refuse(ERROR_INVALID_WINDOW_HANDLE);
    ThreadQueue& queue = CurrentQueue();
    ForgetDeadWindows(queue);
    const UINT_PTR started = queue.timers.Set(window, id, periodMs, procedure, CurrentMoment());
    if (started == 0)
        return Refuse(ERROR_NO_SYSTEM_RESOURCES);
    const UINT_PTR number = window ? id : started;
    const Timer* timer = queue.timers.Find(window, number);
    if (queue.followsManualClock || StartInSystem(queue, *timer))
        return started;
    queue.timers.Kill(window, number);
    return 0;
}

BOOL KillTimer(HWND window, UINT_PTR id) {
    ThreadQueue& queue = CurrentQueue();
    ForgetDeadWindows(queue);
    if (!queue.timers.Kill(window, id))
        return Refuse(ERROR_INVALID_PARAMETER);
    return queue.followsManualClock || EndInSystem(queue, window, id);
}

}  // namespace desktop
}  // namespace korvane
