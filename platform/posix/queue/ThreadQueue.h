#pragma once

#include <condition_variable>
#include <functional>
#include <memory>
#include <vector>

#include "platform/posix/queue/MessageRing.h"
#include "platform/posix/queue/TimerList.h"

namespace korvane {

struct ThreadQueue;

/// A message that another thread has sent and whose answer it awaits. It lies on the sender's stack until
/// `done`.
struct SentMessage {
    MSG message{};
    ThreadQueue* sender = nullptr;
    LRESULT result = 0;
    bool done = false;
};

/// All that one thread may retrieve. Guarded by the session's mutex.
struct ThreadQueue {
    std::vector<SentMessage*> sent;
    std::vector<SentMessage*> answering;  // the innermost last
    MessageRing posted;
    MessageRing input;
    TimerList timers;

    bool quitAsked = false;
    int exitCode = 0;
    Moment quitMoment = 0;

    std::condition_variable changed;

    std::shared_ptr<std::function<bool()>> idleHandler;
    bool idling = false;
};

}  // namespace korvane
