#pragma once

#include <memory>

#include "engine/core/HandlerCast.h"
#include "platform/Export.h"

class CLQWnd;

namespace korvane {
struct TimerState;
}

/// A periodic timer, run by the message loop of the thread that started it.
///
/// Copies share one clockwork: whichever of them starts or stops it does so for all, and it ends with the
/// last. A timer whose target was destroyed is silent. A handler may stop or delete its timer and its target.
class KORVANE_API CLQTimer {
  public:
    CLQTimer();
    CLQTimer(const CLQTimer& other);
    CLQTimer& operator=(const CLQTimer& other);
    ~CLQTimer();

    /// Period in milliseconds; the system runs no timer faster than every 10. A running timer goes on with
    /// the new period, from now.
    void SetTimer(int period);
    /// `handler` is a member function of the target with the parameters (void*, int), cast to this type.
    void SetCallBack(CLQWnd* target, void (CLQWnd::*handler)());
    /// The same without a cast.
    template <class Target>
    void SetCallBack(Target* target, void (Target::*handler)(void*, int));

    /// Starts the timer; a running one starts its period anew.
    void StartTimer();
    void StopTimer();
    bool IsActived();

  private:
    std::shared_ptr<korvane::TimerState> m_pState;
};

template <class Target>
void CLQTimer::SetCallBack(Target* target, void (Target::*handler)(void*, int)) {
    SetCallBack(static_cast<CLQWnd*>(target),
                korvane::HandlerCast<void (CLQWnd::*)()>(static_cast<void (CLQWnd::*)(void*, int)>(handler)));
}
