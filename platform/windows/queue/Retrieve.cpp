#include "platform/Simulation.h"
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

// The system gives quit as soon as nothing is posted. It waits here instead until nothing else waits either.
bool IsAskedQuit(const MSG& message) {
    return message.message == WM_QUIT && !message.hwnd;
}

void TakeOverQuit(bool isRemoved, const MSG& quit) {
    MSG removed;
    if (!isRemoved)
        Peek(removed, {kNoWindow, WM_QUIT, WM_QUIT}, kSentAndPosted, true);
    desktop::PostQuitMessage(static_cast<int>(quit.wParam));
}

bool TakePosted(ThreadQueue& queue, const Filter& filter, bool remove, MSG& message) {
    while (Peek(message, filter, kSentAndPosted, remove)) {
        if (!IsAskedQuit(message)) {
            Stamp(queue, message, remove);
            return true;
        }
        TakeOverQuit(remove, message);
    }
    return false;
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

bool TakePaintBeforeQuit(ThreadQueue& queue, const Filter& filter, bool remove, MSG& message) {
    std::vector<HWND>& windows = queue.paintsBeforeQuit;
    for (auto window = windows.begin(); window != windows.end(); ++window) {
        if (!filter.AcceptsWindow(*window) || !GetUpdateRect(*window, nullptr, FALSE) ||
            !Peek(message, {*window, WM_PAINT, WM_PAINT}, kPaint, remove))
            continue;
        if (remove)
            windows.erase(window);
        return true;
    }
    return false;
}

bool TakePaint(ThreadQueue& queue, const Filter& filter, bool remove, MSG& message) {
    if (!filter.AcceptsNumber(WM_PAINT))
        return false;
    const bool taken = queue.quitAsked ? TakePaintBeforeQuit(queue, filter, remove, message)
                                       : Peek(message, filter, kPaint, remove);
    if (taken)
        StampAsNew(message);
    return taken;
}

bool TakeTimer(ThreadQueue& queue, const Filter& filter, bool remove, MSG& message) {
    if (!filter.AcceptsNumber(WM_TIMER))
        return false;
    const Moment now = CurrentMoment();
    Timer* timer = queue.timers.Due(queue.quitAsked ? queue.quitMoment : now, [&](const Timer& candidate) {
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

bool TakeQuit(ThreadQueue& queue, bool remove, MSG& message) {
    if (!queue.quitAsked)
        return false;
    message = {nullptr, WM_QUIT, static_cast<WPARAM>(queue.exitCode), 0, 0, {}};
    StampAsNew(message);
    if (remove)
        queue.quitAsked = false;
    return true;
}

bool Take(ThreadQueue& queue, const Filter& filter, bool remove, MSG& message) {
    return TakePosted(queue, filter, remove, message) || TakeInput(queue, filter, remove, message) ||
           TakePaint(queue, filter, remove, message) || TakeTimer(queue, filter, remove, message) ||
           TakeQuit(queue, remove, message);
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
    ThreadQueue& queue = CurrentQueue();
    const Filter filter{window, first, last};
    if (!queue.followsManualClock || !message || !filter.IsValid()) {
        const BOOL result = ::GetMessageW(message, window, first, last);
        if (result != kInvalid)
            Adapt(queue, *message, true);
        return result;
    }
    for (;;) {
        if (Take(queue, filter, true, *message))
            return message->message != WM_QUIT;
        if (WaitUnderManualClock(queue) == WaitEnd::NothingWillCome) {
            *message = {nullptr, WM_QUIT, 0, 0, 0, {}};
            StampAsNew(*message);
            return FALSE;
        }
    }
}

BOOL PeekMessageW(MSG* message, HWND window, UINT first, UINT last, UINT remove) {
    ThreadQueue& queue = CurrentQueue();
    const Filter filter{window, first, last};
    const bool removes = (remove & PM_REMOVE) != 0;
    if (queue.followsManualClock && message && filter.IsValid())
        return Take(queue, filter, removes, *message);
    const BOOL found = ::PeekMessageW(message, window, first, last, remove);
    if (found)
        Adapt(queue, *message, removes);
    return found;
}

}  // namespace desktop
}  // namespace korvane
