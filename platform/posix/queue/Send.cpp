#include "platform/posix/queue/Send.h"

#include "platform/posix/LastError.h"
#include "platform/posix/window/RemoteWindows.h"

namespace korvane {
namespace {

// Answers a sent message when it goes out of scope, so that the sender goes on even if the procedure throws.
class Answer {
  public:
    Answer(Session& session, ThreadQueue& queue, SentMessage& message)
        : session_(session), queue_(queue), message_(message) {}
    ~Answer() {
        const std::lock_guard<std::mutex> lock(session_.mutex);
        queue_.answering.pop_back();
        Finish(message_, result_);
    }
    Answer(const Answer&) = delete;
    Answer& operator=(const Answer&) = delete;

    void Give(LRESULT result) { result_ = result; }

  private:
    Session& session_;
    ThreadQueue& queue_;
    SentMessage& message_;
    LRESULT result_ = 0;
};

LRESULT SendToThread(std::unique_lock<std::mutex>& lock, Session& session, ThreadQueue& target,
                     const MSG& message) {
    lock.unlock();
    ThreadQueue& own = CurrentQueue();
    lock.lock();
    if (!FindWindowOf(session, message.hwnd))
        return 0;
    SentMessage sent;
    sent.message = message;
    sent.sender = &own;
    target.sent.push_back(&sent);
    WakeQueue(session, target);
    while (!sent.done) {
        if (own.sent.empty()) {
            own.changed.wait(lock);
        } else {
            lock.unlock();
            AnswerSentMessages(own);
            lock.lock();
        }
    }
    return sent.result;
}

}  // namespace

void AnswerSentMessages(ThreadQueue& queue) {
    Session& session = TheSession();
    for (;;) {
        std::unique_lock<std::mutex> lock(session.mutex);
        if (queue.sent.empty())
            return;
        SentMessage& sent = *queue.sent.front();
        queue.answering.push_back(&sent);
        queue.sent.erase(queue.sent.begin());
        lock.unlock();

        Answer answer(session, queue, sent);
        const MSG& message = sent.message;
        answer.Give(CallProcedure(message.hwnd, message.message, message.wParam, message.lParam));
    }
}

LRESULT CallProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    Session& session = TheSession();
    WNDPROC procedure = nullptr;
    {
        const std::lock_guard<std::mutex> lock(session.mutex);
        const Window* found = FindWindowOf(session, window);
        if (found && found->queue == CurrentQueueIfAny())
            procedure = found->procedure;
    }
    return procedure ? procedure(window, message, wParam, lParam) : 0;
}

}  // namespace korvane

using namespace korvane;

extern "C" {

LRESULT SendMessageW(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (RemoteWindows* remote = window ? RemoteWindowsFor(window) : nullptr)
        return remote->Send(window, message, wParam, lParam);
    Session& session = TheSession();
    std::unique_lock<std::mutex> lock(session.mutex);
    const Window* found = FindWindowOf(session, window);
    if (!found)
        return Fail(ERROR_INVALID_WINDOW_HANDLE);
    if (found->queue != CurrentQueueIfAny())
        return SendToThread(lock, session, *found->queue, {window, message, wParam, lParam, 0, {}});
    const WNDPROC procedure = found->procedure;
    lock.unlock();
    return procedure(window, message, wParam, lParam);
}
}
