#pragma once

#include <map>
#include <memory>
#include <mutex>
#include <vector>

#include "platform/Display.h"
#include "platform/posix/queue/ThreadQueue.h"
#include "platform/posix/window/Window.h"

namespace korvane {

/// The windows and queues of the process. Its mutex guards all of it and is never held while a procedure, a
/// handler or a display runs.
struct Session {
    std::mutex mutex;
    std::vector<std::unique_ptr<ThreadQueue>> queues;
    std::vector<std::unique_ptr<WindowClass>> classes;
    std::map<UINT_PTR, std::unique_ptr<Window>> windows;  // by handle, which is the order of creation
    UINT_PTR lastHandle = 0x10000;
    ATOM lastAtom = 0xC000;
    POINT pointer{};

    Display* display = nullptr;  // borrowed; the one whose events are waited for
    ThreadQueue* displayQueue = nullptr;
};

Session& TheSession();

/// The calling thread's queue, made on first use. It ends with the thread, and its windows with it.
ThreadQueue& CurrentQueue();

/// The same, null when the thread has none yet.
ThreadQueue* CurrentQueueIfAny();

// The following need the session's mutex.

/// Null for a handle of no window.
Window* FindWindowOf(Session& session, HWND handle);
bool IsSameOrChild(Session& session, HWND window, HWND ancestor);
bool IsShownWithParents(Session& session, const Window& window);

/// Makes the queue's thread look again if it waits.
void WakeQueue(Session& session, ThreadQueue& queue);

/// Gives up the window's messages and timers, and ends it. What was sent to it is answered with 0.
void RemoveWindow(Session& session, Window& window);

}  // namespace korvane
