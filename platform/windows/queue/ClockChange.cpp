#include "platform/windows/queue/ClockChange.h"

#include "platform/windows/queue/SystemTimers.h"

namespace korvane {
namespace {

void GiveToSystem(ThreadQueue& queue) {
    queue.timers.KillIf([&queue](const Timer& timer) { return !StartInSystem(queue, timer); });
    const std::lock_guard<std::mutex> lock(QueueMutex());
    for (std::size_t i = 0; i < queue.input.Size(); ++i) {
        const MSG& message = queue.input.At(i);
        PostMessageW(message.hwnd, message.message, message.wParam, message.lParam);
    }
    queue.input = MessageRing();
    queue.stamps = MessageRing();
}

}  // namespace

void FollowClock(ThreadQueue& queue, bool manual) {
    if (queue.followsManualClock == manual)
        return;
    queue.followsManualClock = manual;
    if (manual)
        queue.timers.ForEach([&queue](const Timer& timer) { EndInSystem(queue, timer.window, timer.id); });
    else
        GiveToSystem(queue);
}

}  // namespace korvane
