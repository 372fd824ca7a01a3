#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <string>

#include "tests/controls/dials/TestTuner.h"

namespace korvane::test {
namespace {

/// Paints by hand what a scale is expected to look like.
class Drawing {
  public:
    explicit Drawing(int height = kTunerHeight) : canvas_(GreyCanvas()) {
        FillBlack(kTunerWidth / 2 - 15, 0, kTunerWidth / 2 - 12, height);
    }

    /// A letter for each row, from the top: L, m and s for long, medium and short.
    Drawing& Ticks(const std::string& rows) {
        int y = 0;
        for (const char row : rows) {
            if (row == 'L')
                FillBlack(28, y, 60, y + 3);
            else if (row == 'm')
                FillBlack(33, y, 53, y + 3);
            else
                FillBlack(38, y, 53, y + 3);
            y += 12;
        }
        return *this;
    }

    Drawing& Label(int row, const wchar_t* text) {
        Write(text, kTunerWidth / 2, 12 * row - 11, {255, 255, 255, 255});
        return *this;
    }

    Drawing& Preset(const wchar_t* number, int y) {
        Write(number, 6, y, {0, 0, 0, 255});
        return *this;
    }

    Drawing& Image(CLQSurfHandle image, int x, int y) {
        canvas_.BitBlt(image, kTunerX + x, kTunerY + y, image.GetWidth(), image.GetHeight(), 0, 0);
        return *this;
    }

    std::vector<std::uint32_t> Pixels() const { return PixelsOf(canvas_); }

  private:
    void FillBlack(int left, int top, int right, int bottom) {
        _LQColor black = {0, 0, 0, 255};
        canvas_.FillRect(kTunerX + left, kTunerY + top, kTunerX + right, kTunerY + bottom, black, false);
    }

    void Write(const wchar_t* text, int x, int y, _LQColor color) {
        CLQFont* const font = CLQFontManager::GetInstance()->GetDefaultFont();
        font->SetFontSize(kTunerFontSize, kTunerFontSize);
        canvas_.DrawTextW(text, font, kTunerX + x, kTunerY + y, 0, color, nullptr, 0);
    }

    CLQSurfHandle canvas_;
};

/// What is painted without a window.
class DialSliderPaint : public testing::Test {
  protected:
    void WriteImageFile(const std::string& name, CLQSurfHandle image) {
        WriteImage(scene.ImageFolder() / name, image);
    }

    Scene scene;
    TestTuner tuner;
};

TEST_F(DialSliderPaint, PutsTheValueInTheMiddleRowAndLabelsEachTenthTick) {
    // 98.0 is step 105 from 87.5; the middle row is 10.
    tuner.Prepare(FmScale(), 98.0f);
    EXPECT_EQ(LooksOf(tuner),
              Drawing().Ticks("smsmsLsmsmsmsmsLsmsm").Label(5, L"97.5").Label(15, L"98.5").Pixels());
    tuner.SetVaule(98.5f);
    EXPECT_EQ(LooksOf(tuner),
              Drawing().Ticks("LsmsmsmsmsLsmsmsmsms").Label(0, L"97.5").Label(10, L"98.5").Pixels());
    tuner.SetVaule(98.4f);
    EXPECT_EQ(LooksOf(tuner),
              Drawing().Ticks("sLsmsmsmsmsLsmsmsmsm").Label(1, L"97.5").Label(11, L"98.5").Pixels());
    tuner.SetVaule(97.6f);
    EXPECT_EQ(LooksOf(tuner),
              Drawing().Ticks("smsmsmsmsLsmsmsmsmsL").Label(9, L"97.5").Label(19, L"98.5").Pixels());
}

TEST_F(DialSliderPaint, LabelsWholeNumbersWithoutDecimals) {
    // 999 is step 52 from 531.
    tuner.Prepare(AmScale(), 999.0f);
    EXPECT_EQ(LooksOf(tuner),
              Drawing().Ticks("msmsmsmsLsmsmsmsmsLs").Label(8, L"981").Label(18, L"1071").Pixels());
}

TEST_F(DialSliderPaint, CutsStepsOfWholeNumbers) {
    // (1007 - 531) / 9 is 52.9. Labels count from the value itself.
    tuner.Prepare(AmScale(), 1007.0f);
    EXPECT_EQ(LooksOf(tuner),
              Drawing().Ticks("msmsmsmsLsmsmsmsmsLs").Label(8, L"989").Label(18, L"1079").Pixels());
}

TEST_F(DialSliderPaint, CountsAStepThatIsAHundredthShort) {
    // 87.59 is 9 hundredths above the minimum, and counts as step 1 of 10.
    tuner.Prepare(FmScale(), 87.59f);
    EXPECT_EQ(LooksOf(tuner),
              Drawing().Ticks("smsmsmsmsLsmsmsmsmsL").Label(9, L"87.5").Label(19, L"88.5").Pixels());
    tuner.SetVaule(87.58f);
    EXPECT_EQ(LooksOf(tuner), Drawing().Ticks("LsmsmsmsmsLsmsmsmsms").Label(10, L"87.6").Pixels());
}

TEST_F(DialSliderPaint, PutsTheMiddleRowLowerWhereTheSpanIsRoundedUp) {
    // 22 rows, and 12 above the middle one instead of 11.
    tuner.Prepare(FmScale(), 98.0f, 264);
    EXPECT_EQ(LooksOf(tuner),
              Drawing(264).Ticks("smsmsmsLsmsmsmsmsLsmsm").Label(7, L"97.5").Label(17, L"98.5").Pixels());
}

TEST_F(DialSliderPaint, GoesOnWithTicksBelowTheMinimumWithoutLabels) {
    // Rows 0 and 1 are steps -12 and -11, row 2 is step -10.
    tuner.Prepare(FmScale(), 87.5f, 264);
    EXPECT_EQ(LooksOf(tuner), Drawing(264).Ticks("msLsmsmsmsmsLsmsmsmsms").Label(12, L"87.5").Pixels());
    tuner.SetVaule(87.6f);
    EXPECT_EQ(LooksOf(tuner),
              Drawing(264).Ticks("sLsmsmsmsmsLsmsmsmsmsL").Label(11, L"87.5").Label(21, L"88.5").Pixels());
}

TEST_F(DialSliderPaint, GoesOnWithTicksAboveTheMaximumWithoutLabels) {
    // 108 is step 205; 107.5 is labelled, 108.5 is not.
    tuner.Prepare(FmScale(), 108.0f);
    EXPECT_EQ(LooksOf(tuner), Drawing().Ticks("smsmsLsmsmsmsmsLsmsm").Label(5, L"107.5").Pixels());
}

TEST_F(DialSliderPaint, LabelsReachOneStepBeyondTheMaximum) {
    // 1611, one step above the last one, is a tenth tick.
    tuner.Prepare(AmScale(), 1602.0f);
    EXPECT_EQ(LooksOf(tuner),
              Drawing().Ticks("sLsmsmsmsmsLsmsmsmsm").Label(1, L"1521").Label(11, L"1611").Pixels());
    tuner.SetVaule(1611.0f);
    EXPECT_EQ(LooksOf(tuner),
              Drawing().Ticks("LsmsmsmsmsLsmsmsmsms").Label(0, L"1521").Label(10, L"1611").Pixels());
    tuner.SetVaule(1612.0f);
    EXPECT_EQ(LooksOf(tuner), Drawing().Ticks("LsmsmsmsmsLsmsmsmsms").Label(0, L"1522").Pixels());
}

TEST_F(DialSliderPaint, LabelsReachOneStepBelowTheMinimum) {
    // Less than a step below it the middle row still counts as the minimum's.
    tuner.Prepare(AmScale(), 523.0f);
    EXPECT_EQ(LooksOf(tuner), Drawing().Ticks("LsmsmsmsmsLsmsmsmsms").Label(10, L"523").Pixels());
    tuner.SetVaule(522.0f);
    EXPECT_EQ(LooksOf(tuner), Drawing().Ticks("sLsmsmsmsmsLsmsmsmsm").Label(11, L"531").Pixels());
    // With bounds of one frequency, the ticks of a value above reach below.
    tuner.SetBoundScalFreqID({612.0f, 612.0f, 9.0f, false, L""});
    tuner.SetVaule(612.0f);
    EXPECT_EQ(LooksOf(tuner), Drawing().Ticks("LsmsmsmsmsLsmsmsmsms").Label(10, L"612").Pixels());
    tuner.SetVaule(603.0f + 90.0f);
    EXPECT_EQ(LooksOf(tuner), Drawing().Ticks("sLsmsmsmsmsLsmsmsmsm").Label(1, L"612").Pixels())
        << "693 is nine steps above";
}

TEST_F(DialSliderPaint, LabelsTheFrequencyThatLiesAWholeStepBelowTheMinimum) {
    // 24 hundredths below, cut off, and one more are no step of 25 yet.
    tuner.Prepare({87.5f, 108.0f, 0.25f, true, L""}, 87.25f);
    EXPECT_EQ(LooksOf(tuner), Drawing().Ticks("LsmsmsmsmsLsmsmsmsms").Label(10, L"87.2").Pixels());
    tuner.SetVaule(std::nextafter(87.25f, 0.0f));
    EXPECT_EQ(LooksOf(tuner), Drawing().Ticks("LsmsmsmsmsLsmsmsmsms").Pixels());
}

TEST_F(DialSliderPaint, ShowsTheScaleWithoutAValue) {
    // 0 lies 8749 hundredths below, and one more is added: step -874.
    tuner.Prepare(FmScale(), 0.0f);
    EXPECT_EQ(LooksOf(tuner), Drawing().Ticks("msmsLsmsmsmsmsLsmsms").Pixels());
}

TEST_F(DialSliderPaint, KeepsItsRowsWhenItsHeightChanges) {
    tuner.Prepare(FmScale(), 98.5f);
    tuner.AddShortcut(98.5f);
    tuner.SetSize(kTunerWidth, 300);
    EXPECT_EQ(LooksOf(tuner), Drawing(300)
                                  .Ticks("LsmsmsmsmsLsmsmsmsms")
                                  .Label(0, L"97.5")
                                  .Label(10, L"98.5")
                                  .Preset(L"1", 150)
                                  .Pixels())
        << "the line and the presets follow the height";
}

TEST_F(DialSliderPaint, PlacesThePresetsInView) {
    struct Place {
        float preset;
        int y;
    };
    constexpr int kHidden = -1000;
    tuner.Prepare(FmScale(), 98.0f);
    const auto plain = LooksOf(tuner);
    for (const Place place :
         {Place{96.9f, kHidden}, Place{97.0f, kHidden}, Place{std::nextafter(97.0f, 98.0f), 0},
          Place{97.1f, 12}, Place{97.9f, 108}, Place{97.95f, 120}, Place{98.0f, 120}, Place{98.05f, 120},
          Place{98.1f, 132}, Place{98.15f, 132}, Place{98.2f, 144}, Place{98.9f, 228},
          // 99 hundredths and one more are ten steps.
          Place{std::nextafter(99.0f, 98.0f), 240}, Place{99.0f, kHidden}, Place{99.1f, kHidden},
          Place{-98.0f, kHidden}, Place{0.0f, kHidden}}) {
        tuner.DeleteAllCut();
        tuner.AddShortcut(place.preset);
        if (place.y == kHidden) {
            EXPECT_EQ(LooksOf(tuner), plain) << place.preset;
        } else {
            EXPECT_EQ(LooksOf(tuner), Drawing()
                                          .Ticks("smsmsLsmsmsmsmsLsmsm")
                                          .Label(5, L"97.5")
                                          .Label(15, L"98.5")
                                          .Preset(L"1", place.y)
                                          .Pixels())
                << place.preset;
        }
    }
}

TEST_F(DialSliderPaint, PlacesPresetsOfWholeNumbers) {
    struct Place {
        float preset;
        const wchar_t* number;
        int y;
    };
    tuner.Prepare(AmScale(), 999.0f);
    Drawing expected;
    expected.Ticks("msmsmsmsLsmsmsmsmsLs").Label(8, L"981").Label(18, L"1071");
    // Ten steps are 90; distances are cut to whole steps toward the value.
    for (const Place place :
         {Place{910.0f, L"1", 12}, Place{972.0f, L"2", 84}, Place{999.0f, L"3", 120},
          Place{1007.0f, L"4", 120}, Place{1026.0f, L"5", 156}, Place{1088.0f, L"6", 228}}) {
        tuner.AddShortcut(place.preset);
        expected.Preset(place.number, place.y);
    }
    tuner.AddShortcut(909.0f);
    tuner.AddShortcut(1089.0f);
    EXPECT_EQ(LooksOf(tuner), expected.Pixels());
}

TEST_F(DialSliderPaint, PutsPresetsAndPointerOnTheEvenMiddle) {
    struct Middle {
        int height;
        int y;
    };
    const CLQSurfHandle pointer = Filled(70, 5, {230, 60, 40, 255});
    WriteImageFile("Pointer.lqi", pointer);
    for (const Middle middle : {Middle{240, 120}, Middle{242, 122}, Middle{243, 122}, Middle{250, 126}}) {
        TestTuner odd;
        odd.Prepare(FmScale(), 98.5f, middle.height);
        odd.AddShortcut(98.5f);
        odd.SetPointgnd(L"Pointer.lqi");
        EXPECT_EQ(LooksOf(odd), Drawing(middle.height)
                                    .Ticks("LsmsmsmsmsLsmsmsmsms")
                                    .Label(0, L"97.5")
                                    .Label(10, L"98.5")
                                    .Preset(L"1", middle.y)
                                    .Image(pointer, 0, middle.y + 6)
                                    .Pixels())
            << middle.height;
    }
}

TEST_F(DialSliderPaint, NumbersPresetsByTheirPlaceInTheList) {
    tuner.Prepare(FmScale(), 98.5f);
    for (int i = 0; i < 11; ++i)
        tuner.AddShortcut(10.0f);
    tuner.AddShortcut(98.5f);
    EXPECT_EQ(LooksOf(tuner), Drawing()
                                  .Ticks("LsmsmsmsmsLsmsmsmsms")
                                  .Label(0, L"97.5")
                                  .Label(10, L"98.5")
                                  .Preset(L"12", 120)
                                  .Pixels())
        << "also beyond the six that can be touched";
}

TEST_F(DialSliderPaint, CutsANumberToThreeDigits) {
    tuner.Prepare(FmScale(), 98.5f);
    for (int i = 0; i < 1233; ++i)
        tuner.AddShortcut(10.0f);
    tuner.AddShortcut(98.5f);
    EXPECT_EQ(LooksOf(tuner), Drawing()
                                  .Ticks("LsmsmsmsmsLsmsmsmsms")
                                  .Label(0, L"97.5")
                                  .Label(10, L"98.5")
                                  .Preset(L"123", 120)
                                  .Pixels());
}

TEST_F(DialSliderPaint, ShowsNoPresetsAndStaysAtTheMinimumWithoutAStep) {
    const auto expected = Drawing().Ticks("LsmsmsmsmsLsmsmsmsms").Pixels();
    // Hundredths alone count with decimals, and 0.004 has none.
    for (const float step : {0.0f, 1.0f, 5.0f, 0.004f, -0.002f, std::numeric_limits<float>::quiet_NaN()}) {
        tuner.Prepare({10.0f, 20.0f, step, true, L""}, 98.0f);
        tuner.AddShortcut(98.0f);
        tuner.AddShortcut(98.3f);
        EXPECT_EQ(LooksOf(tuner), expected) << step;
    }
    tuner.Prepare({531.0f, 600.0f, 0.0f, false, L""}, 999.0f);
    tuner.AddShortcut(999.0f);
    EXPECT_EQ(LooksOf(tuner), expected);
    EXPECT_EQ(tuner.IsInRect(1, 121), -1);
}

TEST_F(DialSliderPaint, LaysItsImagesInTheirOrder) {
    const CLQSurfHandle background = Filled(170, 250, {60, 80, 110, 255});
    const CLQSurfHandle icon = Icon();
    const CLQSurfHandle pointer = Filled(100, 20, {230, 60, 40, 255});
    WriteImageFile("Bkg.lqi", background);
    WriteImageFile("Icon.lqi", icon);
    WriteImageFile("Pointer.lqi", pointer);
    tuner.Prepare(FmScale(), 98.5f);
    tuner.AddShortcut(98.5f);
    EXPECT_TRUE(tuner.SetBKgnd(L"Bkg.lqi"));
    EXPECT_TRUE(tuner.SetIcongnd(L"Icon.lqi"));
    EXPECT_TRUE(tuner.SetPointgnd(L"Pointer.lqi"));
    const auto looks = LooksOf(tuner);
    Drawing expected;
    // The background lies under the line, which is painted again here.
    CLQSurfHandle line = Filled(3, kTunerHeight, {0, 0, 0, 255});
    expected.Image(background, 0, 0)
        .Image(line, kTunerWidth / 2 - 15, 0)
        .Ticks("LsmsmsmsmsLsmsmsmsms")
        .Label(0, L"97.5")
        .Label(10, L"98.5")
        .Image(icon, 0, 120)
        .Preset(L"1", 120)
        .Image(pointer, 0, 126);
    EXPECT_EQ(looks, expected.Pixels()) << "the background shows whole, also beyond the control";

    // The shadow lies over everything, as high as the control and as wide as itself.
    WriteImageFile("Shadow.lqi", Filled(160, 300, {0, 0, 0, 90}));
    EXPECT_FALSE(tuner.SetShadowGnd(L"Shadow.lqi")) << "false although it loads";
    expected.Image(Filled(160, kTunerHeight, {0, 0, 0, 90}), 0, 0);
    EXPECT_EQ(LooksOf(tuner), expected.Pixels());
}

TEST_F(DialSliderPaint, KeepsTheFirstImageOfEachKind) {
    WriteImageFile("First.lqi", Filled(30, 30, {60, 80, 110, 255}));
    WriteImageFile("Second.lqi", Filled(50, 50, {230, 60, 40, 255}));
    tuner.Prepare(FmScale(), 98.5f);
    tuner.AddShortcut(98.5f);
    EXPECT_TRUE(tuner.SetBKgnd(L"First.lqi"));
    EXPECT_TRUE(tuner.SetIcongnd(L"First.lqi"));
    EXPECT_TRUE(tuner.SetPointgnd(L"First.lqi"));
    EXPECT_FALSE(tuner.SetShadowGnd(L"First.lqi"));
    const auto looks = LooksOf(tuner);
    tuner.Redraw(false);
    EXPECT_TRUE(tuner.SetBKgnd(L"Second.lqi"));
    EXPECT_TRUE(tuner.SetIcongnd(L"Second.lqi"));
    EXPECT_TRUE(tuner.SetPointgnd(L"Second.lqi"));
    EXPECT_FALSE(tuner.SetShadowGnd(L"Second.lqi"));
    EXPECT_FALSE(tuner.IsNeedRedraw());
    EXPECT_EQ(LooksOf(tuner), looks);
}

TEST_F(DialSliderPaint, KeepsTheFirstImageAlsoWhenItsFileIsMissing) {
    WriteImageFile("Second.lqi", Filled(50, 50, {230, 60, 40, 255}));
    tuner.Prepare(FmScale(), 98.5f);
    const auto looks = LooksOf(tuner);
    EXPECT_TRUE(tuner.SetBKgnd(L"Missing.lqi"));
    EXPECT_TRUE(tuner.SetIcongnd(nullptr));
    EXPECT_TRUE(tuner.SetPointgnd(L""));
    EXPECT_FALSE(tuner.SetShadowGnd(L"Missing.lqi"));
    tuner.SetBKgnd(L"Second.lqi");
    tuner.SetIcongnd(L"Second.lqi");
    tuner.SetPointgnd(L"Second.lqi");
    tuner.SetShadowGnd(L"Second.lqi");
    EXPECT_EQ(LooksOf(tuner), looks);
}

TEST_F(DialSliderPaint, SetsItsFontToItsSizeWhenItPaints) {
    tuner.Prepare(FmScale(), 98.5f);
    const auto looks = LooksOf(tuner);
    CLQFont* const font = CLQFontManager::GetInstance()->GetDefaultFont();
    font->SetFontSize(40, 40);
    EXPECT_EQ(LooksOf(tuner), looks);
    tuner.SetFontSize(30, 31);
    int width = 0, height = 0;
    font->GetFontSize(width, height);
    EXPECT_EQ(width, kTunerFontSize) << "not before it paints";
    EXPECT_NE(LooksOf(tuner), looks);
    font->GetFontSize(width, height);
    EXPECT_EQ(width, 30);
    EXPECT_EQ(height, 31);
}

TEST_F(DialSliderPaint, ShowsNoTextWithoutAFont) {
    tuner.Prepare(FmScale(), 98.5f);
    tuner.AddShortcut(98.5f);
    tuner.SetFont(nullptr);
    EXPECT_EQ(LooksOf(tuner), Drawing().Ticks("LsmsmsmsmsLsmsmsmsms").Pixels());
}

TEST_F(DialSliderPaint, AnyNumbersAreSafe) {
    using Limits = std::numeric_limits<float>;
    const float numbers[] = {0.0f,
                             -0.05f,
                             0.01f,
                             1.01f,
                             1.0e6f,
                             Limits::max(),
                             -Limits::max(),
                             Limits::min(),
                             2.0e9f,
                             Limits::infinity(),
                             -98.0f,
                             98.0f,
                             -Limits::infinity(),
                             Limits::quiet_NaN()};
    for (const bool decimal : {true, false}) {
        for (const float scale : numbers) {
            for (const float value : numbers) {
                for (const float minimum : {87.5f, -Limits::max(), Limits::quiet_NaN()}) {
                    tuner.Prepare({minimum, Limits::max(), scale, decimal, L""}, value);
                    tuner.DeleteAllCut();
                    for (const float preset : numbers)
                        tuner.AddShortcut(preset);
                    LooksOf(tuner);
                }
            }
        }
    }
    CLQSurfHandle nothing;
    tuner.Draw(nothing);
}

TEST_F(DialSliderPaint, AnySizeIsSafe) {
    for (const int height : {0, 1, 12, 24, kMaxExtent}) {
        for (const int width : {0, 1, kMaxExtent}) {
            TestTuner odd;
            ASSERT_TRUE(odd.Create(-1000000, 1000000, width, height));
            odd.SetBoundScalFreqID(FmScale());
            odd.SetVaule(98.0f);
            odd.AddShortcut(98.0f);
            LooksOf(odd);
        }
    }
}

}  // namespace
}  // namespace korvane::test
