#include "platform/posix/queue/Session.h"

#include <algorithm>
#include <sys/eventfd.h>

#include "platform/posix/remote/receive/Station.h"

namespace korvane {
namespace {

// True when it had windows, which end with it.
bool RemoveQueue(ThreadQueue* queue) {
    Session& session = TheSession();
    const std::lock_guard<std::mutex> lock(session.mutex);
    const std::size_t before = session.windows.size();
    for (auto window = session.windows.begin(); window != session.windows.end();) {
        if (window->second->queue == queue)
            window = session.windows.erase(window);
        else
            ++window;
    }
    for (SentMessage* message : queue->sent)
        message->Finish(0);
    for (SentMessage* message : queue->answering)
        message->Finish(0);
    if (session.displayQueue == queue) {
        session.display = nullptr;
        session.displayQueue = nullptr;
    }
    session.queues.erase(
        std::find_if(session.queues.begin(), session.queues.end(),
                     [queue](const std::unique_ptr<ThreadQueue>& owned) { return owned.get() == queue; }));
    return session.windows.size() != before;
}

// Trivial, so that it can still be read while the thread's other objects are being destroyed.
thread_local ThreadQueue* currentQueue = nullptr;

struct QueueEnd {
    ~QueueEnd() {
        const bool hadWindows = RemoveQueue(currentQueue);
        currentQueue = nullptr;
        if (hadWindows)
            PublishWindows();
    }
};

}  // namespace

Session& TheSession() {
    // Never destroyed: static destructors of other modules still close windows and timers.
    static Session& session = *new Session;
    return session;
}

ThreadQueue* CurrentQueueIfAny() {
    return currentQueue;
}

ThreadQueue& CurrentQueue() {
    if (!currentQueue) {
        Session& session = TheSession();
        const std::lock_guard<std::mutex> lock(session.mutex);
        currentQueue = session.queues.emplace_back(std::make_unique<ThreadQueue>()).get();
        // A queue that is made while the thread ends comes after this object's end and stays with the
        // session.
        static thread_local QueueEnd end;
    }
    return *currentQueue;
}

Window* FindWindowOf(Session& session, HWND handle) {
    const auto found = session.windows.find(reinterpret_cast<UINT_PTR>(handle));
    return found == session.windows.end() ? nullptr : found->second.get();
}

bool IsSameOrChild(Session& session, HWND window, HWND ancestor) {
    while (window && window != ancestor) {
        const Window* found = FindWindowOf(session, window);
        window = found && (found->style & WS_CHILD) != 0 ? found->parent : nullptr;
    }
    return window != nullptr;
}

bool IsShownWithParents(Session& session, const Window& window) {
    const Window* shown = &window;
    while (shown && shown->visible) {
        if ((shown->style & WS_CHILD) == 0 || !shown->parent)
            return true;
        shown = FindWindowOf(session, shown->parent);
    }
    return false;
}

void WakeQueue(Session& session, ThreadQueue& queue) {
    if (&queue == currentQueue)
        return;
    queue.changed.notify_all();
    if (queue.socketWaits > 0)
        eventfd_write(queue.raised.Number(), 1);
    if (session.display && session.displayQueue == &queue)
        session.display->Wake();
}

void RemoveWindow(Session& session, Window& window) {
    const HWND handle = window.handle;
    window.queue->posted.EraseOf(handle);
    window.queue->input.EraseOf(handle);
    window.queue->timers.KillOf(handle);
    session.windows.erase(reinterpret_cast<UINT_PTR>(handle));
}

}  // namespace korvane
