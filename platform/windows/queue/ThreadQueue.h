#pragma once

#include <functional>
#include <memory>
#include <mutex>
#include <vector>

#include "platform/queue/MessageRing.h"
#include "platform/queue/TimerList.h"

namespace korvane {

/// Of the system's timers of no window, which choose their numbers themselves.
struct ThreadTimer {
    UINT_PTR id;        // as the program knows it
    UINT_PTR systemId;  // as the system does
};

/// What one thread has besides the system's queue, which holds what is posted, a request to quit and what is
/// invalid.
///
/// `stamps` and `input` are what other threads get at; they and the list of all queues are guarded by
/// QueueMutex. All else belongs to the thread.
struct ThreadQueue {
    ThreadQueue();
    ~ThreadQueue();
    ThreadQueue(const ThreadQueue&) = delete;
    ThreadQueue& operator=(const ThreadQueue&) = delete;

    DWORD threadId = 0;
    MessageRing stamps;  // copies of the posted messages that wait, with their times under the manual clock
    MessageRing input;   // posted by PostInput under the manual clock

    bool followsManualClock = false;  // where the timers run: here, or, only noted here, in the system
    TimerList timers;
    std::vector<ThreadTimer> threadTimers;

    std::shared_ptr<std::function<bool()>> idleHandler;
    bool idling = false;

    HANDLE changed = nullptr;  // an event that ends a wait under the manual clock
};

std::mutex& QueueMutex();

/// The calling thread's queue, made on first use; it ends with the thread. Its timers have been brought to
/// the clock that is in use.
ThreadQueue& CurrentQueue();

/// The queue of a thread of this process, made if need be. Needs QueueMutex.
ThreadQueue& QueueOf(DWORD threadId);

/// Where the pointer was at the last input that PostInput was given. Needs QueueMutex.
POINT& LastPointer();

}  // namespace korvane
