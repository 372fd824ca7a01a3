#pragma once

#include <condition_variable>
#include <functional>
#include <memory>
#include <vector>

#include "platform/posix/files/Descriptor.h"
#include "platform/queue/MessageRing.h"
#include "platform/queue/TimerList.h"

namespace korvane {

/// A message that another thread or process has sent and whose answer it awaits. It belongs to the sender's
/// side.
class SentMessage {
  public:
    MSG message{};

    /// Hands the answer over. To be called once, with the session's mutex held; the object may end with it.
    virtual void Finish(LRESULT result) = 0;

  protected:
    ~SentMessage() = default;
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

    std::condition_variable changed;
    // What the thread waits for together with a socket: an event counter, made when first needed, that is
    // raised while `socketWaits` is not 0.
    Descriptor raised;
    int socketWaits = 0;

    std::shared_ptr<std::function<bool()>> idleHandler;
    bool idling = false;
};

}  // namespace korvane
