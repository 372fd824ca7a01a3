#include "platform/Simulation.h"
#include "platform/windows/LastError.h"
#include "platform/windows/display/ActiveDisplay.h"
#include "platform/windows/display/Touch.h"
#include "platform/windows/queue/Filter.h"
#include "platform/windows/queue/SystemTimers.h"
#include "platform/windows/queue/Waiting.h"

namespace korvane {
namespace {

// Which part of its queue the system is asked about.
constexpr UINT kSentAndPosted = (QS_SENDMESSAGE | QS_POSTMESSAGE | QS_HOTKEY) << 16;
constexpr UINT kInput = QS_INPUT << 16;
constexpr UINT kPaint = QS_PAINT << 16;
constexpr UINT kEverything = 0;

bool Peek(MSG& message, const Filter& filter, UINT part, bool remove) {
    return PeekMessageW(&message, filter.window, filter.first, filter.last,
                        part | (remove ? PM_REMOVE : PM_NOREMOVE)) != 0;
}

// The time and place of what the program's own threads have not posted: just now.
void StampAsNew(MSG& message) {
    const std::lock_guard<std::mutex> lock(QueueMutex());
    message.time = TickCount();
    message.pt = LastPointer();
}

void Stamp(ThreadQueue& queue, MSG& message, bool remove) {
    {
        const std::lock_guard<std::mutex> lock(QueueMutex());
        for (std::size_t i = 0; i < queue.stamps.Size(); ++i) {
            const MSG stamp = queue.stamps.At(i);
            if (stamp.hwnd != message.hwnd || stamp.message != message.message ||
                stamp.wParam != message.wParam || stamp.lParam != message.lParam)
                continue;
            if (remove)
                queue.stamps.Erase(i);
            message = stamp;
            return;
        }
    }
    StampAsNew(message);
}

bool TakePosted(ThreadQueue& queue, const Filter& filter, bool remove, MSG& message) {
    if (!Peek(message, filter, kSentAndPosted, remove))
        return false;
    Stamp(queue, message, remove);
    return true;
}

// The system does not say which part of its queue a request to quit belongs to.
bool TakeQuit(bool remove, MSG& message) {
    if (!Peek(message, {{kNoWindow, WM_QUIT, WM_QUIT}}, kEverything, remove))
        return false;
    StampAsNew(message);
    return true;
}

bool TakeInput(ThreadQueue& queue, const Filter& filter, bool remove, MSG& message) {
    {
        const std::lock_guard<std::mutex> lock(QueueMutex());
        MessageRing& input = queue.input;
        for (std::size_t i = 0; i < input.Size();) {
            const MSG candidate = input.At(i);
            if (!IsWindow(candidate.hwnd)) {
                input.Erase(i);
                continue;
            }
            if (filter.AcceptsNumber(candidate.message) && filter.AcceptsWindow(candidate.hwnd)) {
                message = candidate;
                if (remove)
                    input.Erase(i);
                return true;
            }
            ++i;
        }
    }
    // Without a display nobody means these windows, should the pointer happen to be over one of them.
    if (!IsDisplayThread() || !Peek(message, filter, kInput, remove))
        return false;
    StampAsNew(message);
    TranslateTouch(message);
    return true;
}

bool TakePaint(const Filter& filter, bool remove, MSG& message) {
    if (!filter.AcceptsNumber(WM_PAINT) || !Peek(message, filter, kPaint, remove))
        return false;
    StampAsNew(message);
    return true;
}

bool TakeTimer(ThreadQueue& queue, const Filter& filter, bool remove, MSG& message) {
    if (!filter.AcceptsNumber(WM_TIMER))
        return false;
    const Moment now = CurrentMoment();
    Timer* timer = queue.timers.Due(now, [&](const Timer& candidate) {
        return (!candidate.window || IsWindow(candidate.window)) && filter.AcceptsWindow(candidate.window);
    });
    if (!timer)
        return false;
    message = {timer->window, WM_TIMER, timer->id, reinterpret_cast<LPARAM>(timer->procedure), 0, {}};
    StampAsNew(message);
    if (remove)
        TimerList::Rearm(*timer, now);
    return true;
}

bool Take(ThreadQueue& queue, const Filter& filter, bool remove, MSG& message) {
    return TakePosted(queue, filter, remove, message) || TakeQuit(remove, message) ||
           TakeInput(queue, filter, remove, message) || TakePaint(filter, remove, message) ||
           TakeTimer(queue, filter, remove, message);
}

// What the program sees of a message that the system gave under its own clock.
void Adapt(ThreadQueue& queue, MSG& message, bool remove) {
    TranslateTouch(message);
    if (message.message != WM_TIMER)
        return;
    TranslateSystemTimer(queue, message);
    Timer* timer = queue.timers.Find(message.hwnd, message.wParam);
    const Moment now = CurrentMoment();
    if (remove && timer && timer->due <= now)
        TimerList::Rearm(*timer, now);
}

}  // namespace

namespace desktop {

BOOL GetMessageW(MSG* message, HWND window, UINT first, UINT last) {
    constexpr BOOL kInvalid = -1;
    if (!message) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return kInvalid;
    }
    ThreadQueue& queue = CurrentQueue();
    const Filter filter{{window, first, last}};
    if (!queue.followsManualClock || !filter.IsValid()) {
        const BOOL result = ::GetMessageW(message, window, first, last);
        if (result != kInvalid)
            Adapt(queue, *message, true);
        return result;
    }
    for (WaitEnd end = WaitEnd::LookAgain;;) {
        if (end != WaitEnd::NothingWillCome && Take(queue, filter, true, *message))
            return message->message != WM_QUIT;
        if (end != WaitEnd::LookAgain) {
            *message = {nullptr, WM_QUIT, 0, 0, 0, {}};
            StampAsNew(*message);
            return FALSE;
        }
        end = WaitUnderManualClock(queue);
    }
}

BOOL PeekMessageW(MSG* message, HWND window, UINT first, UINT last, UINT remove) {
    if (!message)
        return Refuse(ERROR_INVALID_PARAMETER);
    ThreadQueue& queue = CurrentQueue();
    const Filter filter{{window, first, last}};
    const bool removes = (remove & PM_REMOVE) != 0;
    if (queue.followsManualClock && filter.IsValid())
        return Take(queue, filter, removes, *message);
    const BOOL found = ::PeekMessageW(message, window, first, last, remove);
    if (found)
        Adapt(queue, *message, removes);
    return found;
}

}  // namespace desktop
}  // namespace korvane
