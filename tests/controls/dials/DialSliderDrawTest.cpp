#include <cstdint>
#include <gtest/gtest.h>
#include <vector>

#include "engine/window/Screen.h"
#include "engine/window/Window.h"

#include "tests/controls/dials/TestTuner.h"
#include "tests/support/ReferenceImage.h"

namespace korvane::test {
namespace {

constexpr int kScreenWidth = 210;
constexpr int kScreenHeight = 280;

/// A scale with all its images in a window with a plain background.
class DialSliderDraw : public testing::Test {
  protected:
    DialSliderDraw() : scene(kScreenWidth, kScreenHeight) {
        _LQColor navy = {16, 32, 72, 255};
        window.Create(0, 0, kScreenWidth, kScreenHeight);
        window.EnableBkgColor(true, &navy);

        CLQSurfHandle background = Filled(kTunerWidth, kTunerHeight, {176, 196, 216, 255});
        _LQColor dark = {40, 58, 84, 255};
        background.FillRect(66, 0, kTunerWidth, kTunerHeight, dark, false);
        CLQSurfHandle pointer = NewSurface(kTunerWidth, 10);
        _LQColor red = {235, 60, 50, 255};
        for (int y = 0; y < 10; ++y)
            pointer.FillRect(61 - y, y, 62 + y, y + 1, red, false);
        CLQSurfHandle icon = Icon();
        CLQSurfHandle shadow = NewSurface(kTunerWidth, kTunerHeight);
        for (int y = 0; y < 60; ++y) {
            _LQColor black = {0, 0, 0, static_cast<unsigned char>(200 - 200 * y / 60)};
            shadow.FillRect(0, y, kTunerWidth, y + 1, black, false);
            shadow.FillRect(0, kTunerHeight - 1 - y, kTunerWidth, kTunerHeight - y, black, false);
        }
        WriteImage(scene.ImageFolder() / "Bkg.lqi", background);
        WriteImage(scene.ImageFolder() / "Pointer.lqi", pointer);
        WriteImage(scene.ImageFolder() / "Icon.lqi", icon);
        WriteImage(scene.ImageFolder() / "Shadow.lqi", shadow);
    }

    void Show(const _FreqStruct_& bounds, float value, const std::vector<float>& presets) {
        tuner.Prepare(bounds, value);
        tuner.SetBKgnd(L"Bkg.lqi");
        tuner.SetPointgnd(L"Pointer.lqi");
        tuner.SetIcongnd(L"Icon.lqi");
        tuner.SetShadowGnd(L"Shadow.lqi");
        for (const float preset : presets)
            tuner.AddShortcut(preset);
        window.AddChild(&tuner);
        scene.Pump();
    }

    static CLQSurfHandle& Screen() { return CLQScreen::GetInstance()->GetScreenSurfHandle(); }

    void ExpectFullRepaintIsTheSame() {
        const auto partial = scene.Pixels();
        scene.FillWithGarbage();
        CLQScreen::GetInstance()->InvalidateAll();
        scene.Pump();
        EXPECT_EQ(scene.Pixels(), partial) << "painting a part gives the pixels of the whole";
    }

    Scene scene;
    CLQWindow window;
    TestTuner tuner;
};

TEST_F(DialSliderDraw, ShowsAFrequencyBetweenItsPresets) {
    Show(FmScale(), 98.0f, {97.4f, 98.6f, 104.0f, 98.1f});
    EXPECT_TRUE(MatchesReference(Screen(), "dial-slider-fm"));
    ExpectFullRepaintIsTheSame();
}

TEST_F(DialSliderDraw, ShowsWholeNumbers) {
    Show(AmScale(), 1017.0f, {999.0f, 963.0f, 1071.0f});
    EXPECT_TRUE(MatchesReference(Screen(), "dial-slider-am"));
    ExpectFullRepaintIsTheSame();
}

TEST_F(DialSliderDraw, ShowsTheEndsOfTheBand) {
    Show(FmScale(), 87.5f, {87.5f, 88.1f});
    EXPECT_TRUE(MatchesReference(Screen(), "dial-slider-minimum"));
    tuner.SetVaule(108.0f);
    scene.Pump();
    EXPECT_TRUE(MatchesReference(Screen(), "dial-slider-maximum"));
    ExpectFullRepaintIsTheSame();
}

TEST_F(DialSliderDraw, ShowsAScaleWithoutAValue) {
    Show(FmScale(), 0.0f, {98.0f});
    EXPECT_TRUE(MatchesReference(Screen(), "dial-slider-empty"));
    ExpectFullRepaintIsTheSame();
}

TEST_F(DialSliderDraw, FollowsADrag) {
    Show(FmScale(), 98.0f, {97.4f, 98.6f});
    scene.Press(kTunerX + 100, kTunerY + 150);
    scene.Move(kTunerX + 100, kTunerY + 90);
    EXPECT_TRUE(MatchesReference(Screen(), "dial-slider-dragged"));
    ExpectFullRepaintIsTheSame();
}

TEST_F(DialSliderDraw, ShowsTheScaleWithoutAnyImage) {
    tuner.Prepare(FmScale(), 98.0f);
    tuner.AddShortcut(97.5f);
    window.AddChild(&tuner);
    scene.Pump();
    EXPECT_TRUE(MatchesReference(Screen(), "dial-slider-without-images"));
    ExpectFullRepaintIsTheSame();
}

TEST_F(DialSliderDraw, OneStepTouchesItsOwnRectangleAndNoOtherPixel) {
    Show(FmScale(), 98.4f, {98.4f});
    scene.FillWithGarbage();
    const auto before = scene.Pixels();
    CLQScreen::GetInstance()->ResetCounters();
    tuner.SetVaule(98.5f);
    scene.Pump();
    const auto after = scene.Pixels();
    for (int y = 0; y < kScreenHeight; ++y) {
        for (int x = 0; x < kScreenWidth; ++x) {
            const bool inside =
                x >= kTunerX && x < kTunerX + kTunerWidth && y >= kTunerY && y < kTunerY + kTunerHeight;
            const auto at = static_cast<std::size_t>(y * kScreenWidth + x);
            if (!inside) {
                ASSERT_EQ(after[at], before[at]) << x << ", " << y;
            }
        }
    }
    const ScreenCounters counters = CLQScreen::GetInstance()->GetCounters();
    EXPECT_EQ(counters.paints, 1u);
    EXPECT_EQ(counters.paintedPixels, static_cast<std::uint64_t>(kTunerWidth * kTunerHeight));
    EXPECT_EQ(counters.flippedPixels, static_cast<std::uint64_t>(kTunerWidth * kTunerHeight));
}

TEST_F(DialSliderDraw, DrawsNothingInAWindowUnlessItIsMarked) {
    Show(FmScale(), 98.0f, {98.0f});
    ASSERT_FALSE(tuner.IsNeedRedraw());
    const auto blank = PixelsOf(GreyCanvas());
    EXPECT_EQ(LooksOf(tuner), blank);
    tuner.DeleteAllCut();
    tuner.AddShortcut(97.5f);
    tuner.Redraw(false);
    LooksOf(tuner);
    EXPECT_EQ(tuner.IsInRect(5, 125), 0) << "and leaves where presets are touched";
    tuner.Redraw(true);
    EXPECT_NE(LooksOf(tuner), blank);
    EXPECT_EQ(tuner.IsInRect(5, 125), -1);
    EXPECT_EQ(tuner.IsInRect(5, 65), 0);
    EXPECT_FALSE(tuner.IsNeedRedraw());
}

TEST_F(DialSliderDraw, DrawsAlwaysAndKeepsItsMarkWithoutAWindow) {
    tuner.Prepare(FmScale(), 98.0f);
    const auto looks = LooksOf(tuner);
    EXPECT_NE(looks, PixelsOf(GreyCanvas()));
    EXPECT_TRUE(tuner.IsNeedRedraw());
    tuner.Redraw(false);
    EXPECT_EQ(LooksOf(tuner), looks);
}

}  // namespace
}  // namespace korvane::test
