#include <algorithm>

#include "platform/Simulation.h"
#include "platform/posix/LastError.h"
#include "platform/posix/queue/Session.h"

namespace korvane {

bool NextTimerDue(unsigned& msFromNow) {
    const ThreadQueue* queue = CurrentQueueIfAny();
    if (!queue)
        return false;
    const std::lock_guard<std::mutex> lock(TheSession().mutex);
    const Timer* timer = queue->timers.Earliest();
    if (!timer)
        return false;
    msFromNow = static_cast<unsigned>(std::max<Moment>(timer->due - CurrentMoment(), 0));
    return true;
}

}  // namespace korvane

using namespace korvane;

extern "C" {

UINT_PTR SetTimer(HWND window, UINT_PTR id, UINT periodMs, TIMERPROC procedure) {
    ThreadQueue& queue = CurrentQueue();
    Session& session = TheSession();
    const std::lock_guard<std::mutex> lock(session.mutex);
    if (window) {
        const Window* found = FindWindowOf(session, window);
        if (!found || found->queue != &queue)
            return Fail(ERROR_INVALID_WINDOW_HANDLE);
    }
    const UINT_PTR started = queue.timers.Set(window, id, periodMs, procedure, CurrentMoment());
    if (started == 0)
        return Fail(ERROR_NO_SYSTEM_RESOURCES);
    return started;
}

BOOL KillTimer(HWND window, UINT_PTR id) {
    ThreadQueue* queue = CurrentQueueIfAny();
    if (!queue)
        return Fail(ERROR_INVALID_PARAMETER);
    const std::lock_guard<std::mutex> lock(TheSession().mutex);
    return queue->timers.Kill(window, id) || Fail(ERROR_INVALID_PARAMETER);
}
}
