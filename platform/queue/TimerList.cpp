#include "platform/queue/TimerList.h"

#include <algorithm>

namespace korvane {

UINT_PTR TimerList::Set(HWND window, UINT_PTR id, UINT period, TIMERPROC procedure, Moment now) {
    period = std::clamp<UINT>(period, USER_TIMER_MINIMUM, USER_TIMER_MAXIMUM);
    for (Timer& timer : timers_) {
        if (timer.window == window && timer.id == id) {
            timer = {window, id, period, procedure, now + period};
            return id != 0 ? id : 1;
        }
    }
    if (timers_.size() >= kLimit)
        return 0;
    if (!window) {
        do
            ++lastId_;
        while (lastId_ == 0 || Find(nullptr, lastId_));
        id = lastId_;
    }
    timers_.push_back({window, id, period, procedure, now + period});
    return id != 0 ? id : 1;
}

bool TimerList::Kill(HWND window, UINT_PTR id) {
    for (auto timer = timers_.begin(); timer != timers_.end(); ++timer) {
        if (timer->window == window && timer->id == id) {
            timers_.erase(timer);
            return true;
        }
    }
    return false;
}

void TimerList::KillOf(HWND window) {
    KillIf([window](const Timer& timer) { return timer.window == window; });
}

const Timer* TimerList::Find(HWND window, UINT_PTR id) const {
    for (const Timer& timer : timers_) {
        if (timer.window == window && timer.id == id)
            return &timer;
    }
    return nullptr;
}

const Timer* TimerList::Earliest() const {
    const auto first = std::min_element(timers_.begin(), timers_.end(),
                                        [](const Timer& a, const Timer& b) { return a.due < b.due; });
    return first == timers_.end() ? nullptr : &*first;
}

void TimerList::Rearm(Timer& timer, Moment now) {
    const Moment late = now - timer.due;
    timer.due += (late / timer.period + 1) * timer.period;
}

}  // namespace korvane
