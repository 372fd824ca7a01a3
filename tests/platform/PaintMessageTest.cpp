#include <gtest/gtest.h>

#include "tests/platform/TestWindow.h"

namespace korvane {
namespace {

// Answers WM_PAINT without validating.
void NeverValidate(TestWindow& window) {
    window.onMessage = [](UINT message, WPARAM, LPARAM, LRESULT&) { return message == WM_PAINT; };
}

bool PaintIsDue(const TestWindow& window) {
    MSG message{};
    return PeekMessageW(&message, window.Handle(), WM_PAINT, WM_PAINT, PM_NOREMOVE) != 0;
}

RECT UpdateOf(const TestWindow& window) {
    RECT rect{-1, -1, -1, -1};
    GetUpdateRect(window.Handle(), &rect, FALSE);
    return rect;
}

bool operator==(const RECT& a, const RECT& b) {
    return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
}

TEST(PaintMessage, ComesAfterPostedMessages) {
    const TestWindow window;
    InvalidateRect(window.Handle(), nullptr, FALSE);
    PostMessageW(window.Handle(), WM_APP, 0, 0);
    EXPECT_EQ(DrainQueue(), (std::vector<UINT>{WM_APP, WM_PAINT}));
}

TEST(PaintMessage, ComesOnceForManyInvalidations) {
    const TestWindow window;
    const RECT first{0, 0, 10, 10};
    const RECT second{50, 60, 70, 80};
    InvalidateRect(window.Handle(), &first, FALSE);
    InvalidateRect(window.Handle(), &second, FALSE);
    EXPECT_EQ(DrainQueue(), std::vector<UINT>{WM_PAINT});
}

TEST(PaintMessage, ComesAgainUntilTheWindowIsValidated) {
    TestWindow window;
    NeverValidate(window);
    InvalidateRect(window.Handle(), nullptr, FALSE);
    for (int i = 0; i < 3; ++i) {
        MSG message{};
        ASSERT_EQ(GetMessageW(&message, nullptr, 0, 0), TRUE);
        EXPECT_EQ(message.message, WM_PAINT);
        DispatchMessageW(&message);
    }
    ValidateRect(window.Handle(), nullptr);
    EXPECT_FALSE(PaintIsDue(window));
}

TEST(PaintMessage, CoversWhatWasInvalidatedWithinTheClientArea) {
    const TestWindow window;
    const RECT rect{90, 70, 500, 500};
    InvalidateRect(window.Handle(), &rect, FALSE);
    EXPECT_TRUE(UpdateOf(window) == (RECT{90, 70, 100, 80}));
    const RECT outside{200, 200, 300, 300};
    ValidateRect(window.Handle(), nullptr);
    InvalidateRect(window.Handle(), &outside, FALSE);
    EXPECT_FALSE(GetUpdateRect(window.Handle(), nullptr, FALSE));
    EXPECT_TRUE(UpdateOf(window) == (RECT{0, 0, 0, 0}));
}

TEST(PaintMessage, SurvivesRectanglesOfEverySize) {
    const TestWindow window;
    constexpr LONG kMost = 0x7FFFFFFF;
    const RECT huge{-kMost - 1, -kMost - 1, kMost, kMost};
    InvalidateRect(window.Handle(), &huge, FALSE);
    EXPECT_TRUE(UpdateOf(window) == (RECT{0, 0, 100, 80}));
    ValidateRect(window.Handle(), &huge);
    EXPECT_FALSE(PaintIsDue(window));
    const RECT empty{50, 50, 50, 60};
    InvalidateRect(window.Handle(), &empty, FALSE);
    EXPECT_FALSE(PaintIsDue(window));
}

TEST(PaintMessage, TakesTheEdgesOfARectangleInEitherOrder) {
    const TestWindow window;
    const RECT reversed{50, 60, 10, 20};
    InvalidateRect(window.Handle(), &reversed, FALSE);
    EXPECT_TRUE(UpdateOf(window) == (RECT{10, 20, 50, 60}));
    ValidateRect(window.Handle(), &reversed);
    EXPECT_FALSE(PaintIsDue(window));
}

TEST(PaintMessage, IsCutByAValidatedEdge) {
    const TestWindow window;
    InvalidateRect(window.Handle(), nullptr, FALSE);
    const RECT upperHalf{0, 0, 100, 40};
    ValidateRect(window.Handle(), &upperHalf);
    EXPECT_TRUE(UpdateOf(window) == (RECT{0, 40, 100, 80}));
    const RECT rightPart{60, 0, 100, 80};
    ValidateRect(window.Handle(), &rightPart);
    EXPECT_TRUE(UpdateOf(window) == (RECT{0, 40, 60, 80}));
}

TEST(PaintMessage, IsSentAtOnceByUpdateWindow) {
    TestWindow window;
    EXPECT_TRUE(UpdateWindow(window.Handle()));
    EXPECT_TRUE(window.All().empty());
    InvalidateRect(window.Handle(), nullptr, FALSE);
    UpdateWindow(window.Handle());
    EXPECT_EQ(window.Numbers(), std::vector<UINT>{WM_PAINT});
    EXPECT_FALSE(PaintIsDue(window));
}

TEST(PaintMessage, DoesNotComeForAHiddenWindow) {
    const TestWindow window;
    ShowWindow(window.Handle(), SW_HIDE);
    InvalidateRect(window.Handle(), nullptr, FALSE);
    EXPECT_FALSE(PaintIsDue(window));
    ShowWindow(window.Handle(), SW_SHOW);
    EXPECT_TRUE(PaintIsDue(window));
}

TEST(PaintMessage, IsRefusedForADeadWindow) {
    HWND dead = nullptr;
    {
        const TestWindow window;
        dead = window.Handle();
    }
    EXPECT_FALSE(InvalidateRect(dead, nullptr, FALSE));
    EXPECT_FALSE(ValidateRect(dead, nullptr));
}

}  // namespace
}  // namespace korvane
