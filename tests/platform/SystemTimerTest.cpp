#include <functional>
#include <gtest/gtest.h>

#include "tests/platform/TestWindow.h"

// The clock here is the system's own: these tests wait, and hold in which order messages come and that none
// comes early, never how soon one comes.
namespace korvane {
namespace {

constexpr DWORD kPatienceMs = 20000;
constexpr UINT kShortMs = 10;
constexpr UINT kEndlessMs = 10 * 60 * 1000;

/// Long enough for a timer of `kShortMs` to be due, however coarsely the system counts.
constexpr DWORD kSeveralPeriodsMs = 100;

std::function<void(HWND, UINT_PTR)> onTimer;
int timerCalls = 0;

void CALLBACK TimerProcedure(HWND window, UINT message, UINT_PTR id, DWORD) {
    EXPECT_EQ(message, WM_TIMER);
    ++timerCalls;
    if (onTimer)
        onTimer(window, id);
}

bool TakeTimer(MSG& message) {
    return PeekMessageW(&message, nullptr, WM_TIMER, WM_TIMER, PM_REMOVE) != 0;
}

bool TimerIsDue() {
    MSG message{};
    return TakeTimer(message);
}

/// Waits for a message of the range, or of any number.
bool Await(MSG& message, UINT first = 0, UINT last = 0) {
    const DWORD start = GetTickCount();
    while (!PeekMessageW(&message, nullptr, first, last, PM_REMOVE)) {
        if (GetTickCount() - start > kPatienceMs)
            return false;
        Sleep(1);
    }
    return true;
}

bool AwaitTimer(MSG& message) {
    return Await(message, WM_TIMER, WM_TIMER);
}

class SystemTimer : public testing::Test {
  protected:
    SystemTimer() {
        timerCalls = 0;
        onTimer = nullptr;
    }

    TestWindow window_;
};

TEST_F(SystemTimer, ComesAfterPostedMessagesAndPaint) {
    SetTimer(window_.Handle(), 1, kShortMs, nullptr);
    Sleep(kSeveralPeriodsMs);
    InvalidateRect(window_.Handle(), nullptr, FALSE);
    PostMessageW(window_.Handle(), WM_APP, 0, 0);
    std::vector<UINT> numbers;
    MSG message{};
    while (numbers.size() < 3 && Await(message)) {
        numbers.push_back(message.message);
        DispatchMessageW(&message);
    }
    EXPECT_EQ(numbers, (std::vector<UINT>{WM_APP, WM_PAINT, WM_TIMER}));
}

TEST_F(SystemTimer, DoesNotComeBeforeItsPeriodIsOver) {
    constexpr DWORD kPeriodMs = 100;
    constexpr DWORD kGrainMs = 32;  // the clock's and the timer's, of 16 each
    const DWORD start = GetTickCount();
    SetTimer(window_.Handle(), 1, kPeriodMs, nullptr);
    MSG message{};
    ASSERT_TRUE(AwaitTimer(message));
    EXPECT_GE(GetTickCount() - start, kPeriodMs - kGrainMs);
}

TEST_F(SystemTimer, ComesOnceHoweverManyPeriodsHavePassed) {
    constexpr DWORD kPeriodMs = 30;
    SetTimer(window_.Handle(), 1, kPeriodMs, nullptr);
    Sleep(10 * kPeriodMs);
    const DWORD start = GetTickCount();
    DWORD count = 0;
    while (TimerIsDue())
        ++count;
    const DWORD whileCounting = GetTickCount() - start;
    EXPECT_LE(count, 2 + whileCounting / kPeriodMs);
}

TEST_F(SystemTimer, KeepsComing) {
    SetTimer(window_.Handle(), 7, kShortMs, nullptr);
    for (int i = 0; i < 3; ++i) {
        MSG message{};
        ASSERT_TRUE(AwaitTimer(message));
        EXPECT_EQ(message.hwnd, window_.Handle());
        EXPECT_EQ(message.wParam, 7u);
        EXPECT_EQ(message.lParam, 0);
        DispatchMessageW(&message);
    }
    EXPECT_EQ(window_.Numbers(), (std::vector<UINT>{WM_TIMER, WM_TIMER, WM_TIMER}));
}

TEST_F(SystemTimer, FallsSilentOnceItIsKilledEvenWhenDue) {
    SetTimer(window_.Handle(), 1, kShortMs, nullptr);
    Sleep(kSeveralPeriodsMs);
    EXPECT_TRUE(KillTimer(window_.Handle(), 1));
    EXPECT_FALSE(TimerIsDue());
    EXPECT_FALSE(KillTimer(window_.Handle(), 1));
}

TEST_F(SystemTimer, FallsSilentWithItsWindow) {
    SetTimer(window_.Handle(), 1, kShortMs, nullptr);
    Sleep(kSeveralPeriodsMs);
    DestroyWindow(window_.Handle());
    EXPECT_FALSE(TimerIsDue());
}

TEST_F(SystemTimer, StartsAnewWhenItIsSetAgain) {
    SetTimer(window_.Handle(), 1, kShortMs, nullptr);
    Sleep(kSeveralPeriodsMs);
    SetTimer(window_.Handle(), 1, kEndlessMs, nullptr);
    EXPECT_FALSE(TimerIsDue());
    SetTimer(window_.Handle(), 1, kShortMs, nullptr);
    MSG message{};
    EXPECT_TRUE(AwaitTimer(message));
}

TEST_F(SystemTimer, BringsItsProcedureAndCallsItOnDispatch) {
    onTimer = [this](HWND window, UINT_PTR id) {
        EXPECT_EQ(window, window_.Handle());
        EXPECT_EQ(id, 9u);
    };
    SetTimer(window_.Handle(), 9, kShortMs, &TimerProcedure);
    MSG message{};
    ASSERT_TRUE(AwaitTimer(message));
    EXPECT_EQ(message.lParam, reinterpret_cast<LPARAM>(reinterpret_cast<void*>(&TimerProcedure)));
    EXPECT_EQ(timerCalls, 0);
    DispatchMessageW(&message);
    EXPECT_EQ(timerCalls, 1);
    EXPECT_TRUE(window_.All().empty());
}

TEST_F(SystemTimer, MayEndItselfInItsProcedure) {
    onTimer = [](HWND window, UINT_PTR id) { EXPECT_TRUE(KillTimer(window, id)); };
    SetTimer(window_.Handle(), 1, kShortMs, &TimerProcedure);
    MSG message{};
    ASSERT_TRUE(AwaitTimer(message));
    DispatchMessageW(&message);
    Sleep(kSeveralPeriodsMs);
    EXPECT_FALSE(TimerIsDue());
    EXPECT_EQ(timerCalls, 1);
}

TEST_F(SystemTimer, NeedsNoWindow) {
    const UINT_PTR first = SetTimer(nullptr, 0, kShortMs, &TimerProcedure);
    const UINT_PTR second = SetTimer(nullptr, 0, kEndlessMs, &TimerProcedure);
    ASSERT_NE(first, 0u);
    ASSERT_NE(second, 0u);
    EXPECT_NE(first, second);
    onTimer = [&](HWND window, UINT_PTR id) {
        EXPECT_EQ(window, nullptr);
        EXPECT_EQ(id, first);
    };
    MSG message{};
    ASSERT_TRUE(AwaitTimer(message));
    EXPECT_EQ(message.wParam, first);
    DispatchMessageW(&message);
    EXPECT_EQ(timerCalls, 1);
    EXPECT_TRUE(KillTimer(nullptr, first));
    EXPECT_TRUE(KillTimer(nullptr, second));
    EXPECT_FALSE(TimerIsDue());
}

}  // namespace
}  // namespace korvane
