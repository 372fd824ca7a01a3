#include <climits>
#include <gtest/gtest.h>
#include <memory>
#include <string>

#include "tests/controls/TestWheel.h"

namespace {

using korvane::test::FmBounds;
using korvane::test::kWheelFontSize;
using korvane::test::kWheelX;
using korvane::test::kWheelY;
using korvane::test::TestWheel;

/// What the three callbacks of one wheel were called with.
struct Calls {
    std::string order;  // u, d and s for move up, move down and stop
    void* context = nullptr;
    void* sender = nullptr;
};

void Note(char which, void* context, void* sender) {
    auto& calls = *static_cast<Calls*>(context);
    calls.order += which;
    calls.context = context;
    calls.sender = sender;
}

void NoteUp(void* context, void* sender) {
    Note('u', context, sender);
}
void NoteDown(void* context, void* sender) {
    Note('d', context, sender);
}
void NoteStop(void* context, void* sender) {
    Note('s', context, sender);
}

class NumSliderTouch : public testing::Test {
  protected:
    NumSliderTouch() {
        wheel.Prepare(FmBounds(), 98.0f);
        wheel.SetMoveUpCallBack(&NoteUp, &calls);
        wheel.SetMoveDownCallBack(&NoteDown, &calls);
        wheel.SetMoveStopCallBack(&NoteStop, &calls);
    }

    static int TouchWidth() {
        CLQFont* const font = CLQFontManager::GetInstance()->GetDefaultFont();
        font->SetFontSize(kWheelFontSize, kWheelFontSize);
        return font->GetStringWidth(L"111.11", false);
    }

    void Swipe(int fromY, int toY) {
        EXPECT_TRUE(wheel.Press(kX, fromY));
        EXPECT_TRUE(wheel.Release(kX, toY));
    }

    static constexpr int kX = kWheelX + 10;
    static constexpr int kY = kWheelY + 90;

    Calls calls;
    TestWheel wheel;
};

TEST_F(NumSliderTouch, HitsAsWideAsAFrequencyAndThreeRowsOfItsFontBoundsIncluded) {
    const int right = kWheelX + TouchWidth();
    const int bottom = kWheelY + 3 * kWheelFontSize;
    ASSERT_GT(right, kWheelX);
    EXPECT_TRUE(wheel.CheckPointIn(kWheelX, kWheelY));
    EXPECT_TRUE(wheel.CheckPointIn(right, kWheelY));
    EXPECT_TRUE(wheel.CheckPointIn(kWheelX, bottom));
    EXPECT_TRUE(wheel.CheckPointIn(right, bottom));
    EXPECT_FALSE(wheel.CheckPointIn(kWheelX - 1, kWheelY));
    EXPECT_FALSE(wheel.CheckPointIn(kWheelX, kWheelY - 1));
    EXPECT_FALSE(wheel.CheckPointIn(right + 1, kWheelY));
    EXPECT_FALSE(wheel.CheckPointIn(kWheelX, bottom + 1));
}

TEST_F(NumSliderTouch, HitsRegardlessOfTheSizeOfTheControl) {
    wheel.SetSize(0, 0);
    EXPECT_TRUE(wheel.CheckPointIn(kWheelX + TouchWidth(), kWheelY + 3 * kWheelFontSize));
    wheel.SetSize(5000, 5000);
    EXPECT_FALSE(wheel.CheckPointIn(kWheelX + TouchWidth() + 1, kWheelY));
}

TEST_F(NumSliderTouch, HitTestUsesItsOwnFontSizeWhateverOthersSet) {
    CLQFontManager::GetInstance()->GetDefaultFont()->SetFontSize(10, 10);
    EXPECT_TRUE(wheel.CheckPointIn(kX, kWheelY + 3 * kWheelFontSize));
    int width = 0, height = 0;
    CLQFontManager::GetInstance()->GetDefaultFont()->GetFontSize(width, height);
    EXPECT_EQ(width, kWheelFontSize);
    EXPECT_EQ(height, kWheelFontSize);
}

TEST_F(NumSliderTouch, HitsNothingWithoutAFont) {
    wheel.SetFont(nullptr);
    EXPECT_FALSE(wheel.CheckPointIn(kX, kY));
    EXPECT_FALSE(wheel.Press(kX, kY));
}

TEST_F(NumSliderTouch, FollowsItsPosition) {
    wheel.MoveTo(500, 300);
    EXPECT_FALSE(wheel.Press(kX, kY));
    EXPECT_TRUE(wheel.Press(500, 300));
}

TEST_F(NumSliderTouch, LeavesAPressOutsideToOthers) {
    EXPECT_FALSE(wheel.Press(kWheelX - 1, kY));
    EXPECT_FALSE(wheel.IsPressed());
}

TEST_F(NumSliderTouch, HoldsAPressUntilTheReleaseWhereverThatIs) {
    EXPECT_TRUE(wheel.Press(kX, kY));
    EXPECT_TRUE(wheel.IsPressed());
    EXPECT_TRUE(wheel.Release(-5000, kY));
    EXPECT_FALSE(wheel.IsPressed());
    EXPECT_EQ(calls.order, "");
}

TEST_F(NumSliderTouch, ConsumesEveryReleaseAndCallsNothingWithoutAPress) {
    EXPECT_TRUE(wheel.Release(kX, kY + 50));
    EXPECT_TRUE(wheel.Release(-1000, -1000));
    EXPECT_EQ(calls.order, "");
}

TEST_F(NumSliderTouch, LeavesMovesAndOtherCodesToOthers) {
    EXPECT_FALSE(wheel.Drag(kX, kY));
    EXPECT_TRUE(wheel.Press(kX, kY));
    for (const unsigned int code : {0u, 256u, 257u, 273u, 512u, 515u, 1191u})
        EXPECT_FALSE(wheel.Hand(code, kX, kY)) << code;
    EXPECT_TRUE(wheel.IsPressed());
    EXPECT_FALSE(wheel.DoMessage(nullptr));
}

TEST_F(NumSliderTouch, SwipeDownAsksForLowerAndSwipeUpForHigherValues) {
    Swipe(kY, kY + 2);
    EXPECT_EQ(calls.order, "d");
    Swipe(kY, kY - 2);
    EXPECT_EQ(calls.order, "du");
    Swipe(kY, kY + 90);
    EXPECT_EQ(calls.order, "dud") << "the length of a swipe does not matter";
    EXPECT_EQ(calls.context, &calls);
    EXPECT_EQ(calls.sender, static_cast<CLQNumSlider*>(&wheel));
}

TEST_F(NumSliderTouch, SwipeStartsNothingByItself) {
    Swipe(kY, kY + 50);
    EXPECT_FALSE(wheel.IsMove());
    EXPECT_FALSE(wheel.TimerRuns());
}

TEST_F(NumSliderTouch, OnePixelIsNoSwipe) {
    Swipe(kY, kY + 1);
    Swipe(kY, kY - 1);
    Swipe(kY, kY);
    EXPECT_EQ(calls.order, "");
}

TEST_F(NumSliderTouch, SwipesOfAnyLengthAreSafe) {
    EXPECT_TRUE(wheel.Press(kX, kY));
    EXPECT_TRUE(wheel.Release(INT_MIN, INT_MIN));
    EXPECT_EQ(calls.order, "u");
    EXPECT_TRUE(wheel.Press(kX, kY));
    EXPECT_TRUE(wheel.Release(INT_MAX, INT_MAX));
    EXPECT_EQ(calls.order, "ud");
    EXPECT_FALSE(wheel.Press(INT_MIN, INT_MIN));
    EXPECT_FALSE(wheel.Press(INT_MAX, INT_MAX));
}

TEST_F(NumSliderTouch, SwipesAreIgnoredWithoutAValue) {
    wheel.SetBoundScalFreqID(FmBounds());
    Swipe(kY, kY + 50);
    EXPECT_EQ(calls.order, "");
}

TEST_F(NumSliderTouch, TouchOfARollingWheelCallsStopAndItsReleaseIsNoSwipe) {
    wheel.StartMove();
    EXPECT_TRUE(wheel.Press(kX, kY));
    EXPECT_EQ(calls.order, "s");
    EXPECT_EQ(calls.context, &calls);
    EXPECT_EQ(calls.sender, static_cast<CLQNumSlider*>(&wheel));
    EXPECT_FALSE(wheel.IsPressed());
    EXPECT_TRUE(wheel.IsMove()) << "stopping is the application's business";
    wheel.MoveStop();
    EXPECT_TRUE(wheel.Release(kX, kY + 50));
    EXPECT_EQ(calls.order, "s");
}

TEST_F(NumSliderTouch, PressThatBeganBeforeTheRollIsNoSwipeWhileItRolls) {
    EXPECT_TRUE(wheel.Press(kX, kY));
    wheel.StartMove();
    EXPECT_TRUE(wheel.Release(kX, kY + 50));
    EXPECT_EQ(calls.order, "");
    EXPECT_FALSE(wheel.IsPressed());
}

TEST_F(NumSliderTouch, PressOutsideARollingWheelStopsNothing) {
    wheel.StartMove();
    EXPECT_FALSE(wheel.Press(kWheelX - 1, kY));
    EXPECT_EQ(calls.order, "");
}

TEST_F(NumSliderTouch, MissingCallBacksAreNotCalled) {
    wheel.SetMoveUpCallBack(nullptr, &calls);
    wheel.SetMoveDownCallBack(nullptr, &calls);
    wheel.SetMoveStopCallBack(nullptr, &calls);
    Swipe(kY, kY + 50);
    Swipe(kY, kY - 50);
    wheel.StartMove();
    EXPECT_TRUE(wheel.Press(kX, kY));
    EXPECT_FALSE(wheel.IsPressed());
    EXPECT_EQ(calls.order, "");
}

TEST_F(NumSliderTouch, AllCallBacksShareTheContextThatWasSetLast) {
    const auto callAll = [this] {
        Swipe(kY, kY + 50);
        Swipe(kY, kY - 50);
        wheel.StartMove();
        wheel.Press(kX, kY);
        wheel.MoveStop();
    };
    Calls fromUp;
    wheel.SetMoveUpCallBack(&NoteUp, &fromUp);
    callAll();
    EXPECT_EQ(fromUp.order, "dus");
    Calls fromDown;
    wheel.SetMoveDownCallBack(&NoteDown, &fromDown);
    callAll();
    EXPECT_EQ(fromDown.order, "dus");
    Calls fromStop;
    wheel.SetMoveStopCallBack(&NoteStop, &fromStop);
    callAll();
    EXPECT_EQ(fromStop.order, "dus");
    EXPECT_EQ(calls.order, "");
}

TEST_F(NumSliderTouch, SlideMoveKeepsTheDirectionAlsoWithoutACallBack) {
    wheel.SetMoveDownCallBack(nullptr, nullptr);
    wheel.SlideMove(true);
    wheel.StartMove();
    wheel.Tick(korvane::test::kTicksPerStep);
    EXPECT_LT(wheel.Value(), 98.0f);
}

TEST_F(NumSliderTouch, ApplicationMayRollTheWheelInItsCallBack) {
    wheel.SetMoveUpCallBack([](void*, void* sender) { static_cast<CLQNumSlider*>(sender)->StartMove(); },
                            nullptr);
    Swipe(kY, kY - 50);
    EXPECT_TRUE(wheel.IsMove());
    wheel.Tick(korvane::test::kTicksPerStep);
    EXPECT_GT(wheel.Value(), 98.0f);
}

TEST(NumSliderLife, CallBacksMayDeleteTheWheel) {
    const auto destroy = [](void* context, void*) {
        static_cast<std::unique_ptr<TestWheel>*>(context)->reset();
    };
    for (const int distance : {50, -50}) {
        auto wheel = std::make_unique<TestWheel>();
        wheel->Prepare(FmBounds(), 98.0f);
        wheel->SetMoveUpCallBack(destroy, &wheel);
        wheel->SetMoveDownCallBack(destroy, &wheel);
        TestWheel& touched = *wheel;
        EXPECT_TRUE(touched.Press(kWheelX, kWheelY + 60));
        EXPECT_TRUE(touched.Release(kWheelX, kWheelY + 60 + distance));
        EXPECT_EQ(wheel, nullptr);
    }

    auto wheel = std::make_unique<TestWheel>();
    wheel->Prepare(FmBounds(), 98.0f);
    wheel->SetMoveStopCallBack(destroy, &wheel);
    wheel->StartMove();
    TestWheel& touched = *wheel;
    EXPECT_TRUE(touched.Press(kWheelX, kWheelY));
    EXPECT_EQ(wheel, nullptr);
}

}  // namespace
