#include "platform/posix/queue/Send.h"

#include <algorithm>
#include <chrono>

#include "platform/posix/LastError.h"
#include "platform/posix/remote/RemoteWindows.h"
#include "platform/posix/remote/receive/Station.h"

namespace korvane {
namespace {

// On the stack of the thread that sends it, until it is done.
class ThreadMessage final : public SentMessage {
  public:
    ThreadMessage(ThreadQueue& sender, const MSG& toSend) : sender_(sender) { message = toSend; }

    bool IsDone() const { return done_; }
    LRESULT Result() const { return result_; }
    void Finish(LRESULT result) override {
        result_ = result;
        done_ = true;
        sender_.changed.notify_all();
    }

  private:
    ThreadQueue& sender_;
    LRESULT result_ = 0;
    bool done_ = false;
};

// Answers a sent message when it goes out of scope, so that the sender goes on even if the procedure throws.
class Answer {
  public:
    Answer(Session& session, ThreadQueue& queue, SentMessage& message)
        : session_(session), queue_(queue), message_(message) {}
    ~Answer() {
        const std::lock_guard<std::mutex> lock(session_.mutex);
        queue_.answering.pop_back();
        message_.Finish(result_);
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

// The names of another process's window are known here, so that reading them carries no pointer there.
bool SendToRemote(HWND window, UINT message, WPARAM wParam, LPARAM lParam, std::chrono::milliseconds patience,
                  LRESULT& result) {
    const auto capacity = static_cast<int>(std::min<WPARAM>(wParam, 0x7FFFFFFF));
    switch (message) {
        case WM_GETTEXT:
            result = GetWindowTextW(window, reinterpret_cast<LPWSTR>(lParam), capacity);
            return true;
        case WM_GETTEXTLENGTH: {
            const std::optional<RemoteWindowNames> names = NamesOfRemoteWindow(window);
            if (!names)
                return Fail(ERROR_INVALID_WINDOW_HANDLE);
            result = static_cast<LRESULT>(names->title.size());
            return true;
        }
        default:
            return SendToRemoteWindow(window, message, wParam, lParam, patience, result);
    }
}

LRESULT SendToThread(std::unique_lock<std::mutex>& lock, Session& session, ThreadQueue& target,
                     const MSG& message) {
    lock.unlock();
    ThreadQueue& own = CurrentQueue();
    lock.lock();
    if (!FindWindowOf(session, message.hwnd))
        return 0;
    ThreadMessage sent(own, message);
    target.sent.push_back(&sent);
    WakeQueue(session, target);
    while (!sent.IsDone()) {
        if (own.sent.empty()) {
            if (ReadsRemoteMessages(lock))
                own.changed.wait(lock);
        } else {
            lock.unlock();
            AnswerSentMessages(own);
            lock.lock();
        }
    }
    return sent.Result();
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
    if (IsRemoteHandle(window)) {
        constexpr std::chrono::seconds kLongestWait{5};
        LRESULT result = 0;
        SendToRemote(window, message, wParam, lParam, kLongestWait, result);
        return result;
    }
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

LRESULT SendMessageTimeoutW(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT, UINT timeoutMs,
                            DWORD_PTR* result) {
    LRESULT answer = 0;
    if (IsRemoteHandle(window)) {
        if (!SendToRemote(window, message, wParam, lParam, std::chrono::milliseconds(timeoutMs), answer))
            return 0;
    } else {
        if (!IsWindow(window))
            return Fail(ERROR_INVALID_WINDOW_HANDLE);
        answer = SendMessageW(window, message, wParam, lParam);
    }
    if (result)
        *result = static_cast<DWORD_PTR>(answer);
    return TRUE;
}
}
