#include <gtest/gtest.h>
#include <thread>

#include "tests/platform/StoppedClock.h"
#include "tests/platform/TestWindow.h"

namespace korvane {
namespace {

/// So often that a thread ends at every moment of a wait for it.
constexpr int kRounds = 100;

TEST(Idle, EndsALoopThatNothingCouldEverWake) {
    const StoppedClock clock;
    const TestWindow window;
    MSG message{};
    EXPECT_EQ(GetMessageW(&message, nullptr, 0, 0), FALSE);
    EXPECT_EQ(message.message, WM_QUIT);
    SetTimer(window.Handle(), 1, 50, nullptr);
    EXPECT_EQ(GetMessageW(&message, nullptr, 0, 0), FALSE);
}

TEST(Idle, AsksItsHandlerOnlyWhenNothingWaits) {
    const StoppedClock clock;
    const TestWindow window;
    int asked = 0;
    SetIdleHandler([&] {
        ++asked;
        return false;
    });
    PostMessageW(window.Handle(), WM_APP, 0, 0);
    MSG message{};
    EXPECT_EQ(GetMessageW(&message, nullptr, 0, 0), TRUE);
    EXPECT_EQ(asked, 0);
    EXPECT_EQ(GetMessageW(&message, nullptr, 0, 0), FALSE);
    EXPECT_EQ(asked, 1);
}

TEST(Idle, StepsFromTimerToTimer) {
    const StoppedClock clock(0);
    const TestWindow window;
    SetTimer(window.Handle(), 1, 50, nullptr);
    SetTimer(window.Handle(), 2, 70, nullptr);
    SetIdleHandler([] {
        unsigned due = 0;
        if (!NextTimerDue(due) || GetTickCount() + due > 150)
            return false;
        AdvanceClock(due);
        return true;
    });
    std::vector<std::pair<DWORD, WPARAM>> seen;
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0)
        seen.emplace_back(message.time, message.wParam);
    EXPECT_EQ(seen, (std::vector<std::pair<DWORD, WPARAM>>{{50, 1}, {70, 2}, {100, 1}, {140, 2}, {150, 1}}));
}

TEST(Idle, MayPumpInItsHandlerWithoutBeingAskedAgain) {
    const StoppedClock clock;
    const TestWindow window;
    int asked = 0;
    SetIdleHandler([&] {
        ++asked;
        MSG inner{};
        EXPECT_EQ(GetMessageW(&inner, nullptr, 0, 0), FALSE);
        return asked < 3;
    });
    MSG message{};
    EXPECT_EQ(GetMessageW(&message, nullptr, 0, 0), FALSE);
    EXPECT_EQ(asked, 3);
}

TEST(Idle, MayReplaceItsHandlerInItsHandler) {
    const StoppedClock clock;
    const TestWindow window;
    bool second = false;
    SetIdleHandler([&] {
        SetIdleHandler([&] {
            second = true;
            return false;
        });
        return true;
    });
    MSG message{};
    EXPECT_EQ(GetMessageW(&message, nullptr, 0, 0), FALSE);
    EXPECT_TRUE(second);
}

TEST(Idle, WaitsForAnotherThreadThatMayPost) {
    const StoppedClock clock;
    const TestWindow window;
    for (int i = 0; i < kRounds; ++i) {
        std::thread poster([&] { PostMessageW(window.Handle(), WM_APP, 0, 0); });
        MSG message{};
        EXPECT_EQ(GetMessageW(&message, nullptr, 0, 0), TRUE) << i;
        EXPECT_EQ(message.message, WM_APP);
        poster.join();
    }
}

TEST(Idle, WakesWhenAnotherThreadMovesTheClock) {
    const StoppedClock clock;
    const TestWindow window;
    SetTimer(window.Handle(), 1, 50, nullptr);
    for (int i = 0; i < kRounds; ++i) {
        std::thread mover([] { AdvanceClock(50); });
        MSG message{};
        EXPECT_EQ(GetMessageW(&message, nullptr, 0, 0), TRUE) << i;
        EXPECT_EQ(message.message, WM_TIMER);
        mover.join();
    }
}

}  // namespace
}  // namespace korvane
