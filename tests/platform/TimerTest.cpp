#include <functional>
#include <gtest/gtest.h>

#include "tests/platform/StoppedClock.h"
#include "tests/platform/TestWindow.h"

namespace korvane {
namespace {

std::function<void(HWND, UINT_PTR, DWORD)> onTimer;
int timerCalls = 0;

void CALLBACK TimerProcedure(HWND window, UINT message, UINT_PTR id, DWORD tick) {
    EXPECT_EQ(message, WM_TIMER);
    ++timerCalls;
    if (onTimer)
        onTimer(window, id, tick);
}

class TimerTest : public testing::Test {
  protected:
    TimerTest() {
        timerCalls = 0;
        onTimer = nullptr;
    }

    // The ids of the timers whose messages wait, in their order.
    std::vector<WPARAM> DueIds() {
        std::vector<WPARAM> ids;
        MSG message{};
        while (ids.size() < 100 && PeekMessageW(&message, nullptr, WM_TIMER, WM_TIMER, PM_REMOVE)) {
            ids.push_back(message.wParam);
            DispatchMessageW(&message);
        }
        return ids;
    }

    StoppedClock clock_;
    TestWindow window_;
};

TEST_F(TimerTest, FallsDueAfterItsPeriodAndNotBefore) {
    ASSERT_NE(SetTimer(window_.Handle(), 7, 50, nullptr), 0u);
    AdvanceClock(49);
    EXPECT_TRUE(DueIds().empty());
    AdvanceClock(1);
    EXPECT_EQ(DueIds(), std::vector<WPARAM>{7});
    EXPECT_TRUE(DueIds().empty());
}

TEST_F(TimerTest, ComesOnceHoweverManyPeriodsHavePassed) {
    SetTimer(window_.Handle(), 7, 50, nullptr);
    AdvanceClock(500);
    EXPECT_EQ(DueIds().size(), 1u);
}

TEST_F(TimerTest, KeepsItsRhythmWhenItsMessageIsTakenLate) {
    SetTimer(window_.Handle(), 7, 50, nullptr);
    AdvanceClock(130);
    EXPECT_EQ(DueIds().size(), 1u);
    AdvanceClock(19);
    EXPECT_TRUE(DueIds().empty());
    AdvanceClock(1);
    EXPECT_EQ(DueIds().size(), 1u);
}

TEST_F(TimerTest, ComesInTheOrderOfFallingDue) {
    SetTimer(window_.Handle(), 1, 60, nullptr);
    SetTimer(window_.Handle(), 2, 50, nullptr);
    SetTimer(window_.Handle(), 3, 50, nullptr);
    AdvanceClock(100);
    EXPECT_EQ(DueIds(), (std::vector<WPARAM>{2, 3, 1}));
}

TEST_F(TimerTest, ComesAfterPostedMessagesInputAndPaint) {
    SetTimer(window_.Handle(), 1, 50, nullptr);
    AdvanceClock(50);
    InvalidateRect(window_.Handle(), nullptr, FALSE);
    PostInput(window_.Handle(), WM_LBUTTONDOWN, MK_LBUTTON, 0);
    PostMessageW(window_.Handle(), WM_APP, 0, 0);
    EXPECT_EQ(DrainQueue(), (std::vector<UINT>{WM_APP, WM_LBUTTONDOWN, WM_PAINT, WM_TIMER}));
}

TEST_F(TimerTest, CallsItsProcedureOnDispatch) {
    std::vector<UINT_PTR> ids;
    onTimer = [&](HWND window, UINT_PTR id, DWORD tick) {
        EXPECT_EQ(window, window_.Handle());
        EXPECT_EQ(tick, GetTickCount());
        ids.push_back(id);
    };
    SetTimer(window_.Handle(), 9, 50, &TimerProcedure);
    AdvanceClock(50);
    DrainQueue();
    EXPECT_EQ(ids, std::vector<UINT_PTR>{9});
    EXPECT_TRUE(window_.All().empty());
}

TEST_F(TimerTest, ChoosesANewIdForAThreadTimer) {
    const UINT_PTR first = SetTimer(nullptr, 0, 50, &TimerProcedure);
    const UINT_PTR second = SetTimer(nullptr, 0, 50, &TimerProcedure);
    ASSERT_NE(first, 0u);
    ASSERT_NE(second, 0u);
    EXPECT_NE(first, second);
    EXPECT_EQ(SetTimer(nullptr, first, 80, &TimerProcedure), first);
    AdvanceClock(50);
    EXPECT_EQ(DueIds(), std::vector<WPARAM>{second});
    EXPECT_EQ(timerCalls, 1);
    EXPECT_TRUE(KillTimer(nullptr, first));
    EXPECT_TRUE(KillTimer(nullptr, second));
    EXPECT_FALSE(KillTimer(nullptr, second));
}

TEST_F(TimerTest, StartsAnewWhenItIsSetAgain) {
    SetTimer(window_.Handle(), 1, 50, nullptr);
    AdvanceClock(40);
    SetTimer(window_.Handle(), 1, 50, nullptr);
    AdvanceClock(40);
    EXPECT_TRUE(DueIds().empty());
    AdvanceClock(10);
    EXPECT_EQ(DueIds().size(), 1u);
}

TEST_F(TimerTest, FallsSilentOnceItIsKilledEvenWhenDue) {
    SetTimer(window_.Handle(), 1, 50, nullptr);
    AdvanceClock(50);
    EXPECT_TRUE(KillTimer(window_.Handle(), 1));
    EXPECT_TRUE(DueIds().empty());
}

TEST_F(TimerTest, DoesNotCallTheProcedureOfATimerKilledBeforeItsDispatch) {
    SetTimer(window_.Handle(), 1, 50, &TimerProcedure);
    AdvanceClock(50);
    MSG message{};
    ASSERT_TRUE(PeekMessageW(&message, nullptr, WM_TIMER, WM_TIMER, PM_REMOVE));
    KillTimer(window_.Handle(), 1);
    DispatchMessageW(&message);
    EXPECT_EQ(timerCalls, 0);
}

TEST_F(TimerTest, MayEndItselfInItsProcedure) {
    onTimer = [](HWND window, UINT_PTR id, DWORD) { EXPECT_TRUE(KillTimer(window, id)); };
    SetTimer(window_.Handle(), 1, 50, &TimerProcedure);
    AdvanceClock(50);
    EXPECT_EQ(DueIds().size(), 1u);
    AdvanceClock(500);
    EXPECT_TRUE(DueIds().empty());
    EXPECT_EQ(timerCalls, 1);
}

TEST_F(TimerTest, MayEndItsWindowInItsProcedure) {
    onTimer = [](HWND window, UINT_PTR, DWORD) { DestroyWindow(window); };
    SetTimer(window_.Handle(), 1, 50, &TimerProcedure);
    SetTimer(window_.Handle(), 2, 50, &TimerProcedure);
    AdvanceClock(50);
    EXPECT_EQ(DueIds().size(), 1u);
    EXPECT_FALSE(IsWindow(window_.Handle()));
}

TEST_F(TimerTest, KeepsComingWhileItsProcedurePumps) {
    onTimer = [this](HWND, UINT_PTR, DWORD) {
        if (timerCalls > 3)
            return;
        AdvanceClock(50);
        DueIds();
    };
    SetTimer(window_.Handle(), 1, 50, &TimerProcedure);
    AdvanceClock(50);
    DueIds();
    EXPECT_EQ(timerCalls, 4);
}

TEST_F(TimerTest, BringsItsPeriodIntoItsRange) {
    SetTimer(window_.Handle(), 1, 0, nullptr);
    unsigned due = 0;
    ASSERT_TRUE(NextTimerDue(due));
    EXPECT_EQ(due, USER_TIMER_MINIMUM);
    SetTimer(window_.Handle(), 1, 0xFFFFFFFF, nullptr);
    ASSERT_TRUE(NextTimerDue(due));
    EXPECT_EQ(due, USER_TIMER_MAXIMUM);
}

TEST_F(TimerTest, RunsAcrossTheWrapOfTheTickCounter) {
    const StoppedClock nearTheEnd(0xFFFFFFF0u);
    SetTimer(window_.Handle(), 1, 50, nullptr);
    AdvanceClock(49);
    EXPECT_EQ(GetTickCount(), 33u);
    EXPECT_TRUE(DueIds().empty());
    AdvanceClock(1);
    EXPECT_EQ(DueIds().size(), 1u);
}

TEST_F(TimerTest, TellsHowLongTheNextOneTakes) {
    unsigned due = 0;
    EXPECT_FALSE(NextTimerDue(due));
    SetTimer(window_.Handle(), 1, 80, nullptr);
    const UINT_PTR ofTheThread = SetTimer(nullptr, 0, 50, &TimerProcedure);
    ASSERT_TRUE(NextTimerDue(due));
    EXPECT_EQ(due, 50u);
    AdvanceClock(200);
    ASSERT_TRUE(NextTimerDue(due));
    EXPECT_EQ(due, 0u);
    KillTimer(nullptr, ofTheThread);
}

TEST_F(TimerTest, RunsOnUnderTheSystemsClock) {
    std::vector<UINT_PTR> ids;
    onTimer = [&](HWND, UINT_PTR id, DWORD) { ids.push_back(id); };
    const UINT_PTR ofTheThread = SetTimer(nullptr, 0, 10, &TimerProcedure);
    SetTimer(window_.Handle(), 7, 10, &TimerProcedure);
    UseSystemClock();
    bool seen = false;
    bool seenOfTheThread = false;
    while (!seen || !seenOfTheThread) {
        MSG message{};
        ASSERT_EQ(GetMessageW(&message, nullptr, WM_TIMER, WM_TIMER), TRUE);
        ASSERT_EQ(message.wParam, message.hwnd ? 7 : ofTheThread);
        (message.hwnd ? seen : seenOfTheThread) = true;
        DispatchMessageW(&message);
        ASSERT_EQ(ids.back(), message.wParam);
    }
    EXPECT_TRUE(KillTimer(nullptr, ofTheThread));
    EXPECT_TRUE(KillTimer(window_.Handle(), 7));
    EXPECT_TRUE(DueIds().empty());
}

TEST_F(TimerTest, KeepsWhatItHadLeftWhenTheClockStops) {
    UseSystemClock();
    SetTimer(window_.Handle(), 7, 60000, nullptr);
    const StoppedClock again;
    unsigned due = 0;
    ASSERT_TRUE(NextTimerDue(due));
    EXPECT_LE(due, 60000u);
    EXPECT_GT(due, 30000u);
    AdvanceClock(due - 1);
    EXPECT_TRUE(DueIds().empty());
    AdvanceClock(1);
    EXPECT_EQ(DueIds(), std::vector<WPARAM>{7});
}

TEST_F(TimerTest, IsRefusedForADeadWindow) {
    DestroyWindow(window_.Handle());
    EXPECT_EQ(SetTimer(window_.Handle(), 1, 50, nullptr), 0u);
    EXPECT_FALSE(KillTimer(window_.Handle(), 1));
}

}  // namespace
}  // namespace korvane
