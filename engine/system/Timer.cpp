#include "engine/system/Timer.h"

#include <algorithm>
#include <map>

#include "engine/window/Wnd.h"
#include "platform/coredll.h"

namespace korvane {

struct TimerState : std::enable_shared_from_this<TimerState> {
    ~TimerState() { Stop(); }

    void Start();
    void Stop();
    void Fire();

    int period = 1;
    CLQWnd* target = nullptr;
    void (CLQWnd::*handler)() = nullptr;
    LifeWatch targetLife;
    /// The system's timer; 0 while stopped.
    UINT_PTR id = 0;
};

namespace {

/// The running timers by the system's numbers.
std::map<UINT_PTR, TimerState*>& RunningTimers() {
    // Never destroyed: timers that end with the program still leave it.
    static auto* const timers = new std::map<UINT_PTR, TimerState*>;
    return *timers;
}

void CALLBACK OnSystemTimer(HWND, UINT, UINT_PTR id, DWORD) {
    const auto found = RunningTimers().find(id);
    if (found == RunningTimers().end())
        return;
    // The handler may end the timer.
    const std::shared_ptr<TimerState> timer = found->second->shared_from_this();
    timer->Fire();
}

}  // namespace

void TimerState::Start() {
    Stop();
    id = ::SetTimer(nullptr, 0, static_cast<UINT>(period), &OnSystemTimer);
    if (id != 0)
        RunningTimers()[id] = this;
}

void TimerState::Stop() {
    if (id == 0)
        return;
    ::KillTimer(nullptr, id);
    RunningTimers().erase(id);
    id = 0;
}

void TimerState::Fire() {
    if (!target || !targetLife.IsAlive()) {
        Stop();
        return;
    }
    if (handler)
        (target->*HandlerCast<void (CLQWnd::*)(void*, int)>(handler))(nullptr, 0);
}

}  // namespace korvane

CLQTimer::CLQTimer() : m_pState(std::make_shared<korvane::TimerState>()) {}

CLQTimer::CLQTimer(const CLQTimer& other) = default;

CLQTimer& CLQTimer::operator=(const CLQTimer& other) = default;

CLQTimer::~CLQTimer() = default;

void CLQTimer::SetTimer(int period) {
    m_pState->period = std::max(period, 1);
    if (m_pState->id != 0)
        m_pState->Start();
}

void CLQTimer::SetCallBack(CLQWnd* target, void (CLQWnd::*handler)()) {
    m_pState->target = target;
    m_pState->handler = handler;
    m_pState->targetLife = target ? target->WatchLife() : korvane::LifeWatch();
}

void CLQTimer::StartTimer() {
    m_pState->Start();
}

void CLQTimer::StopTimer() {
    m_pState->Stop();
}

bool CLQTimer::IsActived() {
    return m_pState->id != 0;
}
