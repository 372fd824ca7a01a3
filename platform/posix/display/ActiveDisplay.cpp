#include "platform/display/ActiveDisplay.h"

#include "platform/posix/queue/Session.h"

namespace korvane {

bool MayActivateDisplay(const Display* display, HWND owner) {
    const ThreadQueue& queue = CurrentQueue();
    Session& session = TheSession();
    const std::lock_guard<std::mutex> lock(session.mutex);
    const Window* window = FindWindowOf(session, owner);
    if (!window || window->queue != &queue)
        return FailDisplay("the display's owner is not a window of this thread");
    return !session.display || session.display == display || FailDisplay("another display is open");
}

void ActivateDisplay(Display* display, HWND) {
    ThreadQueue& queue = CurrentQueue();
    Session& session = TheSession();
    const std::lock_guard<std::mutex> lock(session.mutex);
    session.display = display;
    session.displayQueue = &queue;
}

void DeactivateDisplay(const Display* display) {
    Session& session = TheSession();
    const std::lock_guard<std::mutex> lock(session.mutex);
    if (session.display != display)
        return;
    session.display = nullptr;
    session.displayQueue = nullptr;
}

}  // namespace korvane
