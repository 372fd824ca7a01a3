#include <climits>
#include <gtest/gtest.h>
#include <memory>

#include "engine/window/Screen.h"
#include "engine/window/Window.h"

#include "tests/controls/Touches.h"
#include "tests/controls/media/TestProgress.h"
#include "tests/support/ReferenceImage.h"

namespace korvane::test {
namespace {

/// What a slider should have painted, composed by hand.
class Picture {
  public:
    Picture& Put(CLQSurfHandle image, int x, int y, int width = 400, int height = 400, int sourceX = 0) {
        canvas_.BitBlt(image, x, y, width, height, sourceX, 0);
        return *this;
    }
    Picture& Track() { return Put(TrackImage(), 28, 50, 332, 60); }
    /// As far as the middle of a thumb at that place.
    Picture& Played(int thumb) { return Put(FillImage(), 28, 50, thumb + 16, 60); }
    Picture& Thumb(int thumb) { return Put(ThumbImage(), 34 + thumb, 66); }
    std::vector<std::uint32_t> Pixels() { return PixelsOf(canvas_); }

  private:
    CLQSurfHandle canvas_ = ProgressCanvas();
};

class SliderExDraw : public testing::Test {
  protected:
    SliderExDraw() : scene(380, 130) {
        WriteProgressImages(scene.ImageFolder());
        slider.Prepare();
    }

    Scene scene;
    TestProgress slider;
};

TEST_F(SliderExDraw, ShowsAPlainSliderWithoutPoints) {
    slider.SetValue(100);
    EXPECT_EQ(LooksOf(slider), Picture().Track().Played(100).Thumb(100).Pixels());
}

TEST_F(SliderExDraw, CentresTheIconOfAOnItsPlace) {
    slider.EnableReapetAIcon(60);
    EXPECT_EQ(LooksOf(slider), Picture().Track().Put(AImage(), 87, 22).Played(0).Thumb(0).Pixels())
        << "its row is the screen's, whatever the slider's is";
}

TEST_F(SliderExDraw, ShowsBandAndIconsUnderFillAndThumb) {
    slider.EnableReapetAIcon(60);
    slider.EnableReapetBIcon(120);
    slider.SetValue(100);
    EXPECT_EQ(LooksOf(slider), Picture()
                                   .Track()
                                   .Put(BandImage(200), 94, 50, 60, 60, 66)
                                   .Put(AImage(), 87, 22)
                                   .Put(BImage(), 147, 22)
                                   .Played(100)
                                   .Thumb(100)
                                   .Pixels());
}

TEST_F(SliderExDraw, PaintsFillAndThumbOverTheIcons) {
    // High enough to reach down to the rail.
    CLQSurfHandle tall = Filled(14, 60, {90, 220, 120, 255});
    WriteImage(scene.ImageFolder() / "Tall.lqi", tall);
    slider.SetReapetASurf(L"Tall.lqi");
    slider.EnableReapetAIcon(60);
    slider.SetValue(58);
    EXPECT_EQ(LooksOf(slider), Picture().Track().Put(tall, 87, 22).Played(58).Thumb(58).Pixels());
}

TEST_F(SliderExDraw, EndsTheBandAtTheNumberOfItsOwnWidth) {
    // At 300 the band would end at 306, within 340; the track set further along, it is cut.
    slider.SetTrackOffset(60);
    slider.SetRange(0, 192);
    slider.EnableReapetAIcon(10);
    slider.EnableReapetBIcon(192);
    ASSERT_EQ(slider.BPos(), 192);
    slider.SetSize(200, kBarHeight);
    // The place of B stays at 192, which is 252 along the slider of 200.
    CLQSurfHandle canvas = ProgressCanvas();
    slider.SetFillSurf(nullptr);
    slider.SetBkgSurf(nullptr);
    slider.SetThumbSurf(nullptr);
    slider.SetReapetASurf(L"");
    slider.SetReapetBSurf(L"");
    slider.Draw(canvas);
    EXPECT_EQ(PixelsOf(canvas), Picture().Put(BandImage(200), 98, 50, 130, 60, 70).Pixels());
}

TEST_F(SliderExDraw, ShowsNoBandWhenAWasMovedToBOrBeyond) {
    slider.EnableReapetAIcon(60);
    slider.EnableReapetBIcon(120);
    slider.EnableReapetAIcon(120);
    EXPECT_EQ(LooksOf(slider),
              Picture().Track().Put(AImage(), 147, 22).Put(BImage(), 147, 22).Played(0).Thumb(0).Pixels());
    slider.EnableReapetAIcon(200);
    EXPECT_EQ(LooksOf(slider),
              Picture().Track().Put(AImage(), 227, 22).Put(BImage(), 147, 22).Played(0).Thumb(0).Pixels());
}

TEST_F(SliderExDraw, NeverLightsThePlayedPassage) {
    slider.EnableReapetAIcon(60);
    slider.EnableReapetBIcon(120);
    slider.SetValue(200);
    const auto looks = LooksOf(slider);
    slider.SetReapetBkgActiveSurf(L"OtherBand.lqi");
    EXPECT_EQ(LooksOf(slider), Picture()
                                   .Track()
                                   .Put(BandImage(20), 94, 50, 60, 60, 66)
                                   .Put(AImage(), 87, 22)
                                   .Put(BImage(), 147, 22)
                                   .Played(200)
                                   .Thumb(200)
                                   .Pixels())
        << "the whole band, not the played part, has that image";
    slider.SetReapetBkgSurf(L"Band.lqi");
    EXPECT_EQ(LooksOf(slider), looks);
}

TEST_F(SliderExDraw, LightsThePlayedPassageOfADerivedClass) {
    slider.EnableReapetAIcon(60);
    slider.EnableReapetBIcon(120);
    slider.SetReapetASurf(L"");
    slider.SetReapetBSurf(L"");
    slider.ActiveBand() = BandImage(20);
    struct Played {
        int value;
        int width;
    };
    for (const Played played :
         {Played{0, 0}, Played{60, 0}, Played{61, 1}, Played{119, 59}, Played{120, 60}, Played{300, 60}}) {
        slider.SetValue(played.value);
        EXPECT_EQ(LooksOf(slider), Picture()
                                       .Track()
                                       .Put(BandImage(200), 94, 50, 60, 60, 66)
                                       .Put(BandImage(20), 94, 50, played.width, 60, 66)
                                       .Played(played.value)
                                       .Thumb(played.value)
                                       .Pixels())
            << played.value;
    }
}

TEST_F(SliderExDraw, FillsToTheMiddleOfTheThumbAtBothEnds) {
    for (const int value : {0, 1, 150, 300}) {
        slider.SetValue(value);
        EXPECT_EQ(LooksOf(slider), Picture().Track().Played(value).Thumb(value).Pixels()) << value;
    }
}

TEST_F(SliderExDraw, CutsTheIconsAtTheScreenColumnAndRowOfItsSize) {
    slider.MoveTo(200, 10);
    slider.EnableReapetAIcon(125);
    // 14 wide, from 200 + 14 + 125 - 7 = 332 on, and the column of the slider's width is 340.
    EXPECT_EQ(LooksOf(slider), Picture()
                                   .Put(TrackImage(), 208, 50, 332, 60)
                                   .Put(AImage(), 332, 22, 8)
                                   .Put(FillImage(), 208, 50, 16, 60)
                                   .Put(ThumbImage(), 214, 66)
                                   .Pixels());
    slider.EnableReapetAIcon(133);
    const auto without = Picture()
                             .Put(TrackImage(), 208, 50, 332, 60)
                             .Put(FillImage(), 208, 50, 16, 60)
                             .Put(ThumbImage(), 214, 66)
                             .Pixels();
    EXPECT_EQ(LooksOf(slider), without) << "from 340 on nothing shows";
    slider.EnableReapetAIcon(0);
    slider.SetReapetIconOffset(90);
    EXPECT_EQ(LooksOf(slider), Picture()
                                   .Put(TrackImage(), 208, 50, 332, 60)
                                   .Put(AImage(), 207, 90, 14, 10)
                                   .Put(FillImage(), 208, 50, 16, 60)
                                   .Put(ThumbImage(), 214, 66)
                                   .Pixels());
    slider.SetReapetIconOffset(100);
    EXPECT_EQ(LooksOf(slider), without);
}

TEST_F(SliderExDraw, ShowsNoMarksInAVerticalSlider) {
    slider.EnableReapetAIcon(10);
    slider.EnableReapetBIcon(20);
    slider.SetVertical(true);
    slider.SetThumbOffset(30);
    slider.SetValue(100);
    // The way of the thumb: 100 high, less 40 above, twice 6 and the thumb's 20.
    const int thumb = (100 * 28 + 150) / 300;
    EXPECT_EQ(LooksOf(slider), Picture()
                                   .Track()
                                   .Put(FillImage(), 28, 50, 332, thumb + 16)
                                   .Put(ThumbImage(), 50, 56 + thumb)
                                   .Pixels());
}

TEST_F(SliderExDraw, ShowsThePressedThumbWhileItIsHeld) {
    ASSERT_TRUE(Press(slider, kBarTrackLeft + 110, kBarY + 50));
    ASSERT_EQ(slider.GetValue(), 100);
    EXPECT_EQ(LooksOf(slider), Picture().Track().Played(100).Put(PressedThumbImage(), 134, 66).Pixels());
    slider.SetThumbPressedSurf(L"Missing.lqi");
    EXPECT_EQ(LooksOf(slider), Picture().Track().Played(100).Thumb(100).Pixels());
    Release(slider, 0, 0);
    EXPECT_EQ(LooksOf(slider), Picture().Track().Played(100).Thumb(100).Pixels());
}

TEST_F(SliderExDraw, SkipsImagesThatAreMissing) {
    TestProgress bare;
    bare.Create(kBarX, kBarY, kBarWidth, kBarHeight);
    bare.SetReapetBkgSurf(L"Missing.lqi");
    bare.EnableReapetAIcon(10);
    bare.EnableReapetBIcon(90);
    EXPECT_EQ(LooksOf(bare), Picture().Pixels());
}

TEST_F(SliderExDraw, LoadsAnImageOfTheSliderOnceItIsThere) {
    slider.SetBkgSurf(L"Late.lqi");
    EXPECT_EQ(LooksOf(slider), Picture().Played(0).Thumb(0).Pixels());
    CLQSurfHandle track = TrackImage();
    WriteImage(scene.ImageFolder() / "Late.lqi", track);
    EXPECT_EQ(LooksOf(slider), Picture().Track().Played(0).Thumb(0).Pixels());
}

TEST_F(SliderExDraw, ReadsThePressedThumbWithTheOthersAndNotAtTheTouch) {
    LooksOf(slider);
    std::filesystem::remove(scene.ImageFolder() / "ThumbPressed.lqi");
    ASSERT_TRUE(Press(slider, kBarTrackLeft + 110, kBarY + 50));
    EXPECT_EQ(LooksOf(slider), Picture().Track().Played(100).Put(PressedThumbImage(), 134, 66).Pixels());
}

TEST_F(SliderExDraw, AnyNumbersAreSafe) {
    for (const int number : {INT_MIN, -40000, -1, 0, 1, 40000, INT_MAX}) {
        slider.SetInset(number, number);
        for (const int track : {INT_MIN, 0, INT_MAX}) {
            slider.SetTrackOffset(track);
            slider.SetReapetIconOffset(number);
            slider.EnableReapetAIcon(number);
            slider.EnableReapetBIcon(track);
            slider.SetValue(number);
            LooksOf(slider);
        }
    }
    CLQSurfHandle nothing;
    slider.Draw(nothing);
}

/// The slider in a window, for pictures.
class SliderExLook : public SliderExDraw {
  protected:
    SliderExLook() {
        _LQColor navy = {16, 24, 40, 255};
        window.Create(0, 0, 380, 130);
        window.EnableBkgColor(true, &navy);
        slider.SetValue(150);
        window.AddChild(&slider);
        scene.Pump();
    }

    void ExpectLooks(const char* name) {
        EXPECT_TRUE(MatchesReference(CLQScreen::GetInstance()->GetScreenSurfHandle(), name));
        const auto partial = scene.Pixels();
        scene.FillWithGarbage();
        CLQScreen::GetInstance()->InvalidateAll();
        scene.Pump();
        EXPECT_EQ(scene.Pixels(), partial) << "painting a part gives the pixels of the whole";
    }

    CLQWindow window;
};

TEST_F(SliderExLook, WithoutPoints) {
    ExpectLooks("slider-ex");
}

TEST_F(SliderExLook, WithA) {
    slider.EnableReapetAIcon(60);
    scene.Pump();
    ExpectLooks("slider-ex-a");
}

TEST_F(SliderExLook, WithAAndB) {
    slider.EnableReapetAIcon(60);
    slider.EnableReapetBIcon(240);
    scene.Pump();
    ExpectLooks("slider-ex-a-b");
    slider.CancelReapetPlay();
    scene.Pump();
    ExpectLooks("slider-ex");
}

TEST_F(SliderExLook, WhileItIsDragged) {
    slider.EnableReapetAIcon(60);
    slider.EnableReapetBIcon(240);
    scene.Press(kBarTrackLeft + 160, 80);
    scene.Move(kBarTrackLeft + 210, 10);
    EXPECT_EQ(slider.GetValue(), 200);
    ExpectLooks("slider-ex-dragged");
}

TEST_F(SliderExLook, WithAVerticalTrack) {
    slider.EnableReapetAIcon(60);
    slider.EnableReapetBIcon(240);
    slider.SetVertical(true);
    slider.SetThumbOffset(10);
    scene.Pump();
    ExpectLooks("slider-ex-vertical");
}

TEST_F(SliderExLook, ChangesNoPixelOutsideTheSlider) {
    scene.FillWithGarbage();
    const auto before = scene.Pixels();
    CLQScreen::GetInstance()->ResetCounters();
    slider.EnableReapetAIcon(0);
    slider.SetValue(151);
    scene.Pump();
    const auto after = scene.Pixels();
    for (int y = 0; y < 130; ++y) {
        for (int x = 0; x < 380; ++x) {
            const bool inside = x >= kBarX && x < kBarX + kBarWidth && y >= kBarY && y < kBarY + kBarHeight;
            const auto at = static_cast<std::size_t>(y * 380 + x);
            if (!inside) {
                ASSERT_EQ(after[at], before[at]) << x << ", " << y;
            }
        }
    }
    EXPECT_EQ(CLQScreen::GetInstance()->GetCounters().paintedPixels,
              static_cast<std::uint64_t>(kBarWidth * kBarHeight));
}

TEST_F(SliderExLook, PaintsOnlyWhenItIsMarked) {
    CLQSurfHandle canvas = ProgressCanvas();
    slider.Draw(canvas);
    EXPECT_EQ(PixelsOf(canvas), PixelsOf(ProgressCanvas())) << "painted already";
    slider.SetReapetIconOffset(kIconTop);
    EXPECT_TRUE(slider.IsNeedRedraw());
    slider.Draw(canvas);
    EXPECT_FALSE(slider.IsNeedRedraw());
    EXPECT_NE(PixelsOf(canvas), PixelsOf(ProgressCanvas()));
}

}  // namespace
}  // namespace korvane::test
