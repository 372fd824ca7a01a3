#pragma once

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

#include "platform/clock/Clock.h"

namespace korvane {

struct Timer {
    HWND window;
    UINT_PTR id;
    UINT period;
    TIMERPROC procedure;
    Moment due;
};

/// The timers of one thread.
class TimerList {
  public:
    /// Starts or restarts a timer, first due one period from now. Returns its id, which it chooses itself for
    /// a null window; 0 when there are too many.
    UINT_PTR Set(HWND window, UINT_PTR id, UINT period, TIMERPROC procedure, Moment now);

    bool Kill(HWND window, UINT_PTR id);
    void KillOf(HWND window);

    /// Ends those that `accepts`.
    template <typename Accepts>
    void KillIf(const Accepts& accepts) {
        timers_.erase(std::remove_if(timers_.begin(), timers_.end(), accepts), timers_.end());
    }

    template <typename Visit>
    void ForEach(const Visit& visit) {
        for (Timer& timer : timers_)
            visit(timer);
    }

    const Timer* Find(HWND window, UINT_PTR id) const;
    Timer* Find(HWND window, UINT_PTR id) {
        return const_cast<Timer*>(std::as_const(*this).Find(window, id));
    }

    /// The timer that is due first, null when there is none.
    const Timer* Earliest() const;

    /// The one that has been due the longest at `now` and that `accepts`, null when there is none.
    template <typename Accepts>
    Timer* Due(Moment now, const Accepts& accepts) {
        Timer* first = nullptr;
        for (Timer& timer : timers_) {
            if (timer.due <= now && (!first || timer.due < first->due) && accepts(timer))
                first = &timer;
        }
        return first;
    }

    /// Counts on from the last due moment, past every period that is over at `now`.
    static void Rearm(Timer& timer, Moment now);

  private:
    static constexpr std::size_t kLimit = 10000;

    std::vector<Timer> timers_;
    UINT_PTR lastId_ = 0;
};

}  // namespace korvane
