#include "platform/posix/LastError.h"
#include "platform/posix/queue/Send.h"
#include "platform/posix/queue/Waiting.h"
#include "platform/posix/remote/receive/Station.h"
#include "platform/queue/MessageFilter.h"

namespace korvane {
namespace {

struct Filter : MessageFilter {
    bool AcceptsWindow(Session& session, HWND target) const {
        if (!window || window == target)
            return true;
        return window == kNoWindow ? !target : IsSameOrChild(session, target, window);
    }
};

bool TakeFrom(MessageRing& messages, Session& session, const Filter& filter, bool remove, MSG& message) {
    for (std::size_t i = 0; i < messages.Size(); ++i) {
        const MSG& candidate = messages.At(i);
        if (filter.AcceptsNumber(candidate.message) && filter.AcceptsWindow(session, candidate.hwnd)) {
            message = candidate;
            if (remove)
                messages.Erase(i);
            return true;
        }
    }
    return false;
}

MSG Generated(const Session& session, HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return {window, message, wParam, lParam, GetTickCount(), session.pointer};
}

bool TakePaint(Session& session, const ThreadQueue& queue, const Filter& filter, MSG& message) {
    if (!filter.AcceptsNumber(WM_PAINT))
        return false;
    for (const auto& [handle, window] : session.windows) {
        if (window->queue != &queue || window->update.IsEmpty())
            continue;
        if (!filter.AcceptsWindow(session, window->handle) || !IsShownWithParents(session, *window))
            continue;
        message = Generated(session, window->handle, WM_PAINT, 0, 0);
        return true;
    }
    return false;
}

bool TakeTimer(Session& session, ThreadQueue& queue, const Filter& filter, bool remove, MSG& message) {
    if (!filter.AcceptsNumber(WM_TIMER))
        return false;
    const Moment now = CurrentMoment();
    Timer* timer = queue.timers.Due(
        now, [&](const Timer& candidate) { return filter.AcceptsWindow(session, candidate.window); });
    if (!timer)
        return false;
    message = Generated(session, timer->window, WM_TIMER, timer->id,
                        reinterpret_cast<LPARAM>(reinterpret_cast<void*>(timer->procedure)));
    if (remove)
        TimerList::Rearm(*timer, now);
    return true;
}

bool TakeQuit(const Session& session, ThreadQueue& queue, bool remove, MSG& message) {
    if (!queue.quitAsked)
        return false;
    message = Generated(session, nullptr, WM_QUIT, static_cast<WPARAM>(queue.exitCode), 0);
    if (remove)
        queue.quitAsked = false;
    return true;
}

bool Take(Session& session, ThreadQueue& queue, const Filter& filter, bool remove, MSG& message) {
    return TakeFrom(queue.posted, session, filter, remove, message) ||
           TakeQuit(session, queue, remove, message) ||
           TakeFrom(queue.input, session, filter, remove, message) ||
           TakePaint(session, queue, filter, message) || TakeTimer(session, queue, filter, remove, message);
}

bool IsValid(Session& session, const ThreadQueue& queue, const Filter& filter) {
    if (!filter.window || filter.window == kNoWindow)
        return true;
    const Window* window = FindWindowOf(session, filter.window);
    return (window && window->queue == &queue) || Fail(ERROR_INVALID_WINDOW_HANDLE);
}

}  // namespace
}  // namespace korvane

using namespace korvane;

extern "C" {

BOOL GetMessageW(MSG* message, HWND window, UINT first, UINT last) {
    constexpr BOOL kInvalid = -1;
    if (!message) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return kInvalid;
    }
    ThreadQueue& queue = CurrentQueue();
    Session& session = TheSession();
    const Filter filter{{window, first, last}};
    for (;;) {
        TakeInRemoteMessages();
        AnswerSentMessages(queue);
        PumpDisplay(session, queue);
        std::unique_lock<std::mutex> lock(session.mutex);
        if (!queue.sent.empty())
            continue;
        if (!IsValid(session, queue, filter))
            return kInvalid;
        if (Take(session, queue, filter, true, *message))
            return message->message != WM_QUIT;
        if (WaitForWork(lock, session, queue) == WaitEnd::NothingWillCome) {
            *message = Generated(session, nullptr, WM_QUIT, 0, 0);
            return FALSE;
        }
    }
}

BOOL PeekMessageW(MSG* message, HWND window, UINT first, UINT last, UINT remove) {
    if (!message)
        return Fail(ERROR_INVALID_PARAMETER);
    ThreadQueue& queue = CurrentQueue();
    Session& session = TheSession();
    const Filter filter{{window, first, last}};
    TakeInRemoteMessages();
    AnswerSentMessages(queue);
    PumpDisplay(session, queue);
    const std::lock_guard<std::mutex> lock(session.mutex);
    return IsValid(session, queue, filter) &&
           Take(session, queue, filter, (remove & PM_REMOVE) != 0, *message);
}
}
