#include <gtest/gtest.h>
#include <optional>

#include "tests/platform/StoppedClock.h"
#include "tests/platform/TestWindow.h"

namespace korvane {
namespace {

enum class ClockKind { System, Manual };

class QuitTest : public testing::TestWithParam<ClockKind> {
  protected:
    QuitTest() {
        if (GetParam() == ClockKind::Manual)
            clock_.emplace();
    }

    static bool Take(MSG& message, UINT remove = PM_REMOVE) {
        return PeekMessageW(&message, nullptr, 0, 0, remove) != 0;
    }

  private:
    std::optional<StoppedClock> clock_;

  protected:
    TestWindow window_;
};

TEST_P(QuitTest, ComesOnceWithItsCodeWhenNothingPostedWaits) {
    PostQuitMessage(5);
    PostMessageW(window_.Handle(), WM_APP, 0, 0);
    MSG message{};
    EXPECT_EQ(GetMessageW(&message, nullptr, 0, 0), TRUE);
    EXPECT_EQ(message.message, WM_APP);
    EXPECT_EQ(GetMessageW(&message, nullptr, 0, 0), FALSE);
    EXPECT_EQ(message.message, WM_QUIT);
    EXPECT_EQ(message.hwnd, nullptr);
    EXPECT_EQ(message.wParam, 5u);
    EXPECT_FALSE(Take(message));
}

TEST_P(QuitTest, WaitsNeitherForPaintNorForTimers) {
    SetTimer(window_.Handle(), 1, 10, nullptr);
    Sleep(100);
    InvalidateRect(window_.Handle(), nullptr, FALSE);
    PostQuitMessage(0);
    PostMessageW(window_.Handle(), WM_APP, 0, 0);
    std::vector<UINT> numbers = DrainQueue();
    numbers.resize(3);
    EXPECT_EQ(numbers, (std::vector<UINT>{WM_APP, WM_QUIT, WM_PAINT}));
}

TEST_P(QuitTest, StaysWhereItIsWhenItIsOnlyPeeked) {
    PostQuitMessage(3);
    MSG message{};
    for (const UINT remove : {PM_NOREMOVE, PM_NOREMOVE, PM_REMOVE}) {
        ASSERT_TRUE(Take(message, remove));
        EXPECT_EQ(message.message, WM_QUIT);
        EXPECT_EQ(message.wParam, 3u);
    }
    EXPECT_FALSE(Take(message));
}

TEST_P(QuitTest, PassesEveryFilter) {
    MSG message{};
    PostQuitMessage(1);
    EXPECT_EQ(GetMessageW(&message, window_.Handle(), WM_KEYFIRST, WM_KEYFIRST), FALSE);
    PostQuitMessage(2);
    ASSERT_TRUE(PeekMessageW(&message, window_.Handle(), WM_KEYFIRST, WM_KEYFIRST, PM_NOREMOVE));
    ASSERT_TRUE(PeekMessageW(&message, window_.Handle(), WM_KEYFIRST, WM_KEYFIRST, PM_REMOVE));
    EXPECT_EQ(message.message, WM_QUIT);
    EXPECT_EQ(message.wParam, 2u);
}

TEST_P(QuitTest, EndsALoopThatIsPostedItAsAMessage) {
    PostMessageW(window_.Handle(), WM_QUIT, 3, 0);
    MSG message{};
    EXPECT_EQ(GetMessageW(&message, nullptr, 0, 0), FALSE);
    EXPECT_EQ(message.wParam, 3u);
    EXPECT_FALSE(Take(message));
}

INSTANTIATE_TEST_SUITE_P(Quit, QuitTest, testing::Values(ClockKind::System, ClockKind::Manual),
                         [](const testing::TestParamInfo<ClockKind>& clock) {
                             return clock.param == ClockKind::System ? "SystemClock" : "ManualClock";
                         });

TEST(Quit, DoesNotWaitForInput) {
    const StoppedClock clock;
    const TestWindow window;
    PostInput(window.Handle(), WM_LBUTTONUP, 0, 0);
    PostQuitMessage(0);
    EXPECT_EQ(DrainQueue(), (std::vector<UINT>{WM_QUIT, WM_LBUTTONUP}));
}

TEST(Quit, OutlivesAnExchangeOfTheClock) {
    const TestWindow window;
    {
        const StoppedClock clock;
        PostQuitMessage(4);
    }
    MSG message{};
    EXPECT_EQ(GetMessageW(&message, nullptr, 0, 0), FALSE);
    EXPECT_EQ(message.wParam, 4u);
}

}  // namespace
}  // namespace korvane
