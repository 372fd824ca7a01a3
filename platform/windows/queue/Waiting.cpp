#include "platform/windows/queue/Waiting.h"

#include "platform/windows/display/ActiveDisplay.h"
#include "platform/windows/queue/OtherThreads.h"

namespace korvane {
namespace {

// How long a wait relies on the other threads that there were when it began.
constexpr DWORD kRecheckMs = 250;

// Marks the queue as inside its idle handler for as long as it lives.
class Idling {
  public:
    explicit Idling(ThreadQueue& queue) : queue_(queue) { queue_.idling = true; }
    ~Idling() { queue_.idling = false; }
    Idling(const Idling&) = delete;
    Idling& operator=(const Idling&) = delete;

  private:
    ThreadQueue& queue_;
};

bool RunIdleHandler(ThreadQueue& queue) {
    const std::shared_ptr<std::function<bool()>> handler = queue.idleHandler;
    const Idling idling(queue);
    return (*handler)();
}

}  // namespace

WaitEnd WaitUnderManualClock(ThreadQueue& queue) {
    if (queue.idling)
        return WaitEnd::NothingWillCome;
    if (queue.idleHandler)
        return RunIdleHandler(queue) ? WaitEnd::LookAgain : WaitEnd::NothingWillCome;
    const bool onDisplay = IsDisplayThread();
    if (!onDisplay && !OtherThreadsExist())
        return WaitEnd::LookOnceMore;
    constexpr DWORD kMessages = QS_SENDMESSAGE | QS_POSTMESSAGE | QS_HOTKEY | QS_PAINT;
    MsgWaitForMultipleObjectsEx(1, &queue.changed, onDisplay ? INFINITE : kRecheckMs,
                                onDisplay ? kMessages | QS_INPUT : kMessages, 0);
    return WaitEnd::LookAgain;
}

}  // namespace korvane
