#include "platform/windows/queue/ThreadQueue.h"

#include "platform/Simulation.h"
#include "platform/clock/SystemTime.h"
#include "platform/windows/queue/ClockChange.h"

namespace korvane {
namespace {

using Queues = std::vector<std::unique_ptr<ThreadQueue>>;

Queues& AllQueues() {
    // Never destroyed: static destructors of other modules may still post.
    static Queues& queues = *new Queues;
    return queues;
}

// Ends the thread's queue with the thread.
class OwnQueue {
  public:
    OwnQueue() {
        const std::lock_guard<std::mutex> lock(QueueMutex());
        queue_ = &QueueOf(GetCurrentThreadId());
    }
    ~OwnQueue() {
        const std::lock_guard<std::mutex> lock(QueueMutex());
        Queues& queues = AllQueues();
        for (auto queue = queues.begin(); queue != queues.end(); ++queue) {
            if (queue->get() == queue_) {
                queues.erase(queue);
                return;
            }
        }
    }
    OwnQueue(const OwnQueue&) = delete;
    OwnQueue& operator=(const OwnQueue&) = delete;

    ThreadQueue& Queue() { return *queue_; }

  private:
    ThreadQueue* queue_ = nullptr;
};

}  // namespace

ThreadQueue::ThreadQueue() : changed(CreateEventW(nullptr, FALSE, FALSE, nullptr)) {}

ThreadQueue::~ThreadQueue() {
    if (changed)
        CloseHandle(changed);
}

std::mutex& QueueMutex() {
    static std::mutex& mutex = *new std::mutex;
    return mutex;
}

ThreadQueue& CurrentQueue() {
    static thread_local OwnQueue own;
    ThreadQueue& queue = own.Queue();
    FollowClock(queue, IsManualClock());
    return queue;
}

ThreadQueue& QueueOf(DWORD threadId) {
    Queues& queues = AllQueues();
    for (const std::unique_ptr<ThreadQueue>& queue : queues) {
        if (queue->threadId == threadId)
            return *queue;
    }
    queues.push_back(std::make_unique<ThreadQueue>());
    queues.back()->threadId = threadId;
    return *queues.back();
}

POINT& LastPointer() {
    static POINT pointer{};
    return pointer;
}

void WakeAllQueues() {
    const std::lock_guard<std::mutex> lock(QueueMutex());
    for (const std::unique_ptr<ThreadQueue>& queue : AllQueues())
        SetEvent(queue->changed);
}

}  // namespace korvane
