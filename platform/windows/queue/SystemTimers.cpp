#include "platform/windows/queue/SystemTimers.h"

namespace korvane {
namespace {

const ThreadTimer* FindBySystemId(const ThreadQueue& queue, UINT_PTR systemId) {
    for (const ThreadTimer& timer : queue.threadTimers) {
        if (timer.systemId == systemId)
            return &timer;
    }
    return nullptr;
}

// Where a loop of the system's own dispatches, as while the user moves a window, the message was not
// translated.
void CALLBACK OnThreadTimer(HWND, UINT message, UINT_PTR systemId, DWORD tick) {
    ThreadQueue& queue = CurrentQueue();
    const ThreadTimer* known = FindBySystemId(queue, systemId);
    const Timer* timer = known ? queue.timers.Find(nullptr, known->id) : nullptr;
    if (timer && timer->procedure)
        timer->procedure(nullptr, message, timer->id, tick);
}

}  // namespace

bool StartInSystem(ThreadQueue& queue, const Timer& timer) {
    if (timer.window)
        return SetTimer(timer.window, timer.id, timer.period, timer.procedure) != 0;
    for (ThreadTimer& known : queue.threadTimers) {
        if (known.id == timer.id) {
            known.systemId = SetTimer(nullptr, known.systemId, timer.period, &OnThreadTimer);
            return known.systemId != 0;
        }
    }
    const UINT_PTR systemId = SetTimer(nullptr, 0, timer.period, &OnThreadTimer);
    if (systemId != 0)
        queue.threadTimers.push_back({timer.id, systemId});
    return systemId != 0;
}

bool EndInSystem(ThreadQueue& queue, HWND window, UINT_PTR id) {
    if (window)
        return KillTimer(window, id) != 0;
    for (auto known = queue.threadTimers.begin(); known != queue.threadTimers.end(); ++known) {
        if (known->id == id) {
            const UINT_PTR systemId = known->systemId;
            queue.threadTimers.erase(known);
            return KillTimer(nullptr, systemId) != 0;
        }
    }
    return false;
}

void TranslateSystemTimer(ThreadQueue& queue, MSG& message) {
    UINT_PTR id = message.wParam;
    if (!message.hwnd) {
        const ThreadTimer* known = FindBySystemId(queue, id);
        if (!known)
            return;
        id = known->id;
    }
    const Timer* timer = queue.timers.Find(message.hwnd, id);
    if (!timer)
        return;
    message.wParam = id;
    message.lParam = reinterpret_cast<LPARAM>(timer->procedure);
}

}  // namespace korvane
