#include "platform/posix/queue/Waiting.h"

#include <algorithm>
#include <chrono>
#include <dirent.h>
#include <limits>
#include <memory>
#include <thread>

#include "platform/Simulation.h"
#include "platform/clock/SystemTime.h"
#include "platform/posix/remote/receive/Station.h"

namespace korvane {
namespace {

using SteadyClock = std::chrono::steady_clock;

// Milliseconds until the deadline, rounded up and bounded to what a display takes; 0 when it has passed.
int MillisecondsUntil(SteadyClock::time_point deadline) {
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - SteadyClock::now()).count();
    return static_cast<int>(std::clamp<std::int64_t>(left, 0, std::numeric_limits<int>::max()));
}

bool OtherThreadsExist() {
    // One entry a thread, besides "." and "..". Those that only hand on what other processes send do not
    // count.
    const std::unique_ptr<DIR, int (*)(DIR*)> threads(opendir("/proc/self/task"), &closedir);
    int entries = 0;
    while (threads && readdir(threads.get()))
        ++entries;
    return entries > 3 + RemoteReaders();
}

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

bool RunIdleHandler(std::unique_lock<std::mutex>& lock, ThreadQueue& queue) {
    const std::shared_ptr<std::function<bool()>> handler = queue.idleHandler;
    const Idling idling(queue);
    lock.unlock();
    const bool more = (*handler)();
    lock.lock();
    return more;
}

void WaitOnDisplay(std::unique_lock<std::mutex>& lock, Display& display, int timeoutMs) {
    lock.unlock();
    display.WaitEvents(timeoutMs);
    lock.lock();
}

WaitEnd WaitUnderManualClock(std::unique_lock<std::mutex>& lock, Session& session, ThreadQueue& queue) {
    if (queue.idling)
        return WaitEnd::NothingWillCome;
    if (queue.idleHandler)
        return RunIdleHandler(lock, queue) ? WaitEnd::LookAgain : WaitEnd::NothingWillCome;
    const bool onDisplay = session.display && session.displayQueue == &queue;
    if (!onDisplay && !IsKnownElsewhere() && !OtherThreadsExist())
        return WaitEnd::NothingWillCome;
    if (!ReadsRemoteMessages(lock))
        return WaitEnd::LookAgain;
    if (onDisplay)
        WaitOnDisplay(lock, *session.display, -1);
    else
        queue.changed.wait(lock);
    return WaitEnd::LookAgain;
}

}  // namespace

WaitEnd WaitForWork(std::unique_lock<std::mutex>& lock, Session& session, ThreadQueue& queue) {
    if (IsManualClock())
        return WaitUnderManualClock(lock, session, queue);
    if (!ReadsRemoteMessages(lock))
        return WaitEnd::LookAgain;
    const Timer* timer = queue.timers.Earliest();
    const Moment left = timer ? std::max<Moment>(timer->due - CurrentMoment(), 0) : 0;
    if (session.display && session.displayQueue == &queue)
        WaitOnDisplay(lock, *session.display, timer ? static_cast<int>(left) : -1);
    else if (timer)
        queue.changed.wait_for(lock, std::chrono::milliseconds(left));
    else
        queue.changed.wait(lock);
    return WaitEnd::LookAgain;
}

void PumpDisplay(Session& session, ThreadQueue& queue) {
    std::unique_lock<std::mutex> lock(session.mutex);
    if (session.display && session.displayQueue == &queue)
        WaitOnDisplay(lock, *session.display, 0);
}

void WaitWithoutRetrieving(DWORD ms) {
    const auto deadline = SteadyClock::now() + std::chrono::milliseconds(ms);
    Session& session = TheSession();
    std::unique_lock<std::mutex> lock(session.mutex);
    const ThreadQueue* queue = CurrentQueueIfAny();
    while (queue && session.display && session.displayQueue == queue && SteadyClock::now() < deadline)
        WaitOnDisplay(lock, *session.display, MillisecondsUntil(deadline));
    lock.unlock();
    if (ms == INFINITE) {
        for (;;)
            std::this_thread::sleep_for(std::chrono::hours(24));
    }
    std::this_thread::sleep_until(deadline);
}

void WakeAllQueues() {
    Session& session = TheSession();
    const std::lock_guard<std::mutex> lock(session.mutex);
    for (const std::unique_ptr<ThreadQueue>& queue : session.queues)
        WakeQueue(session, *queue);
}

}  // namespace korvane
