#include <gtest/gtest.h>
#include <stdexcept>
#include <string>

#include "demo/headunit/radio/RadioScreen.h"
#include "tests/demo/DemoScene.h"

namespace korvane::demo {

namespace {

constexpr unsigned kStepMs = 200;
constexpr int kWheelPixels = 312 * 212;

class RadioTest : public testing::Test {
  protected:
    RadioTest() {
        radio_.Create(0, 0, 800, 480);
        radio_.OnInit();
        scene_.Pump();
    }

    /// The n-th control of its class on the screen.
    template <class Control>
    Control& Find(int n = 0) {
        for (int i = 0; i < radio_.GetChildCount(); ++i) {
            auto* control = dynamic_cast<Control*>(radio_.GetChild(i));
            if (control && n-- == 0)
                return *control;
        }
        throw std::out_of_range("no such control");
    }
    int Step() { return Find<CLQSliderCtrl>().GetValue(); }
    bool IsSeeking() { return Find<CLQNumSlider>().IsMove(); }
    bool Shows(const std::wstring& text) {
        for (int i = 0; i < radio_.GetChildCount(); ++i) {
            auto* label = dynamic_cast<CLQStatic*>(radio_.GetChild(i));
            if (label && label->GetText() == text)
                return true;
        }
        return false;
    }

    void SwipeUp() {
        scene_.Press(340, 280);
        scene_.Move(340, 220);
        scene_.Release(340, 160);
    }
    void SwipeDown() {
        scene_.Press(340, 160);
        scene_.Release(340, 280);
    }
    void TouchWheel() {
        scene_.Press(340, 224);
        scene_.Release(340, 224);
    }
    void PressBandButton() {
        scene_.Press(112, 224);
        scene_.Release(112, 224);
    }
    /// Drags the slider's thumb over an end of the band.
    void DragToLowerEnd() { DragSlider(100); }
    void DragToUpperEnd() { DragSlider(700); }
    void DragSlider(int x) {
        scene_.Press(400, 408);
        scene_.Move(x, 408);
        scene_.Release(x, 408);
    }

    /// The row of the screen in which the wheel's middle number begins.
    int MiddleNumberTop() {
        constexpr _LQRect kMiddle = {250, 470, 184, 260};
        for (int y = kMiddle.top; y < kMiddle.bottom; ++y) {
            for (int x = kMiddle.left; x < kMiddle.right; ++x) {
                if (scene_.PixelAt(x, y) == 0xFFFFFFFFu)
                    return y;
            }
        }
        return kMiddle.bottom;
    }

    test::DemoScene scene_;
    Tuner tuner_;
    RadioScreen radio_{tuner_};
};

constexpr int kStartStep = 220;  // 98.5 MHz

}  // namespace

TEST_F(RadioTest, StartsAtRestOnFm) {
    EXPECT_FALSE(IsSeeking());
    EXPECT_EQ(Step(), kStartStep);
    EXPECT_TRUE(Shows(L"87.5"));
    EXPECT_TRUE(Shows(L"108.0"));
    EXPECT_TRUE(Shows(L"Swipe the wheel to seek"));
}

TEST_F(RadioTest, SeeksUpAfterASwipeUpUntilItIsTouched) {
    SwipeUp();
    EXPECT_TRUE(IsSeeking());
    EXPECT_TRUE(Shows(L"Seeking up, touch to stop"));
    scene_.Advance(5 * kStepMs);
    EXPECT_EQ(Step(), kStartStep + 5);
    TouchWheel();
    EXPECT_FALSE(IsSeeking());
    EXPECT_TRUE(Shows(L"Swipe the wheel to seek"));
    scene_.Advance(5 * kStepMs);
    EXPECT_EQ(Step(), kStartStep + 5);
}

TEST_F(RadioTest, SeeksDownAfterASwipeDown) {
    SwipeDown();
    EXPECT_TRUE(Shows(L"Seeking down, touch to stop"));
    scene_.Advance(3 * kStepMs);
    EXPECT_EQ(Step(), kStartStep - 3);
}

TEST_F(RadioTest, SettlesOnTheLastFrequencyWhenStoppedInTheMiddleOfAStep) {
    const auto atRest = scene_.Pixels();
    SwipeUp();
    scene_.Advance(kStepMs - 50);
    EXPECT_NE(scene_.Pixels(), atRest);
    TouchWheel();
    EXPECT_EQ(scene_.Pixels(), atRest);
}

TEST_F(RadioTest, GoesOnAtTheOtherEndOfTheBand) {
    DragToUpperEnd();
    ASSERT_EQ(Step(), 410);
    SwipeUp();
    scene_.Advance(kStepMs);
    EXPECT_EQ(Step(), 0);
    TouchWheel();
    SwipeDown();
    scene_.Advance(kStepMs);
    EXPECT_EQ(Step(), 410);
}

TEST_F(RadioTest, PassesEveryStepOfTheBandAndBothItsEnds) {
    SwipeUp();
    for (int i = 1; i <= 411; ++i) {
        scene_.Advance(kStepMs);
        ASSERT_EQ(Step(), (kStartStep + i) % 411);
    }
    TouchWheel();
    SwipeDown();
    for (int i = 1; i <= 411; ++i) {
        scene_.Advance(kStepMs);
        ASSERT_EQ(Step(), (kStartStep + 411 - i) % 411);
    }
}

TEST_F(RadioTest, SwitchesTheBandAndComesBackToItsFrequency) {
    SwipeUp();
    scene_.Advance(2 * kStepMs);
    PressBandButton();
    EXPECT_FALSE(IsSeeking());
    EXPECT_TRUE(Shows(L"531"));
    EXPECT_TRUE(Shows(L"1602"));
    EXPECT_EQ(Step(), 51);  // 990 kHz
    PressBandButton();
    EXPECT_EQ(Step(), kStartStep + 2);
}

TEST_F(RadioTest, ShowsWholeNumbersAsHighAsDecimals) {
    const int fm = MiddleNumberTop();
    PressBandButton();
    EXPECT_NEAR(MiddleNumberTop(), fm, 2);
    PressBandButton();
    EXPECT_EQ(MiddleNumberTop(), fm);
}

TEST_F(RadioTest, SeeksInStepsOfAm) {
    PressBandButton();
    SwipeUp();
    scene_.Advance(2 * kStepMs);
    EXPECT_EQ(Step(), 53);
}

TEST_F(RadioTest, StopsSeekingWhenTunedByHand) {
    SwipeUp();
    scene_.Advance(kStepMs);
    DragToLowerEnd();
    EXPECT_FALSE(IsSeeking());
    EXPECT_EQ(Step(), 0);
}

TEST_F(RadioTest, ShowsWhatWasTunedWhileItWasHidden) {
    const auto before = scene_.Pixels();
    radio_.SetShow(false);
    tuner_.SwitchBand();
    tuner_.Tune(1089.0f);
    radio_.SetShow(true);
    EXPECT_TRUE(Shows(L"1602"));
    EXPECT_EQ(Step(), 62);
    PressBandButton();
    EXPECT_EQ(scene_.Pixels(), before);
}

TEST_F(RadioTest, ATickOfTheWheelRepaintsTheWheelAlone) {
    SwipeUp();
    scene_.Pump();
    CLQScreen::GetInstance()->ResetCounters();
    scene_.Advance(50);
    const ScreenCounters counters = CLQScreen::GetInstance()->GetCounters();
    EXPECT_EQ(counters.paints, 1u);
    EXPECT_EQ(counters.paintedPixels, static_cast<unsigned>(kWheelPixels));
    EXPECT_EQ(counters.flippedPixels, static_cast<unsigned>(kWheelPixels));
}

TEST_F(RadioTest, PaintsNothingWhileNothingHappens) {
    CLQScreen::GetInstance()->ResetCounters();
    scene_.Advance(30000);
    EXPECT_EQ(CLQScreen::GetInstance()->GetCounters().paints, 0u);
}

}  // namespace korvane::demo
