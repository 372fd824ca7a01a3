#include <gtest/gtest.h>

#include "tests/platform/StoppedClock.h"
#include "tests/platform/TestWindow.h"

namespace korvane {
namespace {

std::vector<MSG> TakeAll() {
    std::vector<MSG> messages;
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
        messages.push_back(message);
    return messages;
}

TEST(InputQueue, ReachesItsWindowWhateverTheClock) {
    const TestWindow window;
    EXPECT_TRUE(PostInput(window.Handle(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 4)));
    EXPECT_EQ(DrainQueue(), std::vector<UINT>{WM_LBUTTONDOWN});
    EXPECT_FALSE(PostInput(nullptr, WM_LBUTTONDOWN, MK_LBUTTON, 0));
}

TEST(InputQueue, ComesAfterPostedMessages) {
    const StoppedClock clock;
    const TestWindow window;
    PostInput(window.Handle(), WM_LBUTTONDOWN, MK_LBUTTON, 0);
    PostMessageW(window.Handle(), WM_APP, 0, 0);
    EXPECT_EQ(DrainQueue(), (std::vector<UINT>{WM_APP, WM_LBUTTONDOWN}));
}

TEST(InputQueue, KeepsTheLastOfMovesInARow) {
    const StoppedClock clock(1000);
    const TestWindow window;
    PostInput(window.Handle(), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(1, 1));
    AdvanceClock(5);
    PostInput(window.Handle(), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(2, 2));
    const std::vector<MSG> messages = TakeAll();
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_EQ(messages[0].lParam, MAKELPARAM(2, 2));
    EXPECT_EQ(messages[0].time, 1005u);
}

TEST(InputQueue, KeepsMovesApartThatSomethingElseDivides) {
    const StoppedClock clock;
    const TestWindow window;
    const TestWindow other;
    PostInput(window.Handle(), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(1, 1));
    PostInput(window.Handle(), WM_LBUTTONUP, 0, MAKELPARAM(1, 1));
    PostInput(window.Handle(), WM_MOUSEMOVE, 0, MAKELPARAM(2, 2));
    PostInput(other.Handle(), WM_MOUSEMOVE, 0, MAKELPARAM(3, 3));
    EXPECT_EQ(TakeAll().size(), 4u);
}

TEST(InputQueue, TellsWhereOnTheScreenThePointerWas) {
    const StoppedClock clock;
    const TestWindow window;  // at 10, 20
    PostInput(window.Handle(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, -4));
    PostMessageW(window.Handle(), WM_APP, 0, 0);
    for (const MSG& message : TakeAll()) {
        EXPECT_EQ(message.pt.x, 13);
        EXPECT_EQ(message.pt.y, 16);
    }
}

TEST(InputQueue, TakesATimeOfItsOwn) {
    const StoppedClock clock(1000);
    const TestWindow window;
    EXPECT_TRUE(PostInputAt(window.Handle(), WM_LBUTTONDOWN, MK_LBUTTON, 0, 300));
    EXPECT_TRUE(PostAt(window.Handle(), WM_COMMAND, 0, 0, 299));
    const std::vector<MSG> messages = TakeAll();
    ASSERT_EQ(messages.size(), 2u);
    EXPECT_EQ(messages[0].time, 299u);
    EXPECT_EQ(messages[1].time, 300u);
}

TEST(InputQueue, RefusesADeadWindowAndAFullQueue) {
    const StoppedClock clock;
    const TestWindow window;
    EXPECT_FALSE(PostInput(nullptr, WM_LBUTTONDOWN, 0, 0));
    for (int i = 0; i < 10000; ++i)
        ASSERT_TRUE(PostInput(window.Handle(), WM_KEYDOWN, VK_F1, 0)) << i;
    EXPECT_FALSE(PostInput(window.Handle(), WM_KEYDOWN, VK_F1, 0));
    EXPECT_TRUE(PostMessageW(window.Handle(), WM_APP, 0, 0));
}

}  // namespace
}  // namespace korvane
