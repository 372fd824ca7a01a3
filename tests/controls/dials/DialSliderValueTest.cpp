#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

#include "controls/parts/DialSliderLayout.h"

#include "tests/controls/dials/TestTuner.h"

namespace korvane::test {
namespace {

using Floats = std::vector<float>;

constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();

/// True when the change asks for a repaint.
template <class Change>
bool Repaints(CLQBaseCtrl& ctrl, Change change) {
    ctrl.Redraw(false);
    change();
    return ctrl.IsNeedRedraw();
}

TEST(DialSliderValue, IsOfKind52AndStartsEmpty) {
    TestTuner tuner;
    EXPECT_EQ(tuner.GetKind(), 52);
    EXPECT_EQ(tuner.Value(), 0.0f);
    EXPECT_TRUE(tuner.Shortcuts().empty());
    EXPECT_EQ(tuner.IsBound(0.0f), 0) << "both bounds are 0";
    EXPECT_EQ(tuner.IsBound(0.1f), 2);
    EXPECT_EQ(tuner.IsBound(-0.1f), 1);
    EXPECT_EQ(tuner.FormatStr(87.5f), L"87.5") << "with decimals";
    EXPECT_EQ(tuner.IsInRect(0, 0), -1);
    EXPECT_EQ(tuner.IsInRect(1, 1), -1);
}

TEST(DialSliderValue, CreateGivesTheResultOfTheBase) {
    TestTuner tuner;
    EXPECT_TRUE(tuner.Create(1, 2, 150, 240));
    EXPECT_FALSE(tuner.Create(1, 2, 150, -240));
    EXPECT_FALSE(tuner.Create(1, 2, 150, 2000000000));
    int width = 0, height = 0;
    tuner.GetSize(width, height);
    EXPECT_EQ(width, 150);
    EXPECT_EQ(height, 240);
    EXPECT_EQ(tuner.TickCount(), 20) << "of the height that it has";
    EXPECT_EQ(tuner.HalfSpan(), 10);
}

TEST(DialSliderValue, CountsTicksByTheHeightGivenAtCreation) {
    struct Ticks {
        int height;
        int count;
        int halfSpan;
    };
    for (const Ticks ticks :
         {Ticks{0, 0, 0}, Ticks{11, 0, 0}, Ticks{12, 1, 0}, Ticks{23, 1, 0}, Ticks{24, 2, 2}, Ticks{47, 3, 2},
          Ticks{48, 4, 2}, Ticks{72, 6, 4}, Ticks{240, 20, 10}, Ticks{251, 20, 10}, Ticks{252, 21, 10},
          Ticks{263, 21, 10}, Ticks{264, 22, 12}, Ticks{265, 22, 12}, Ticks{288, 24, 12},
          Ticks{384, 32, 16}}) {
        TestTuner tuner;
        ASSERT_TRUE(tuner.Create(0, 0, 150, ticks.height));
        EXPECT_EQ(tuner.TickCount(), ticks.count) << ticks.height;
        EXPECT_EQ(tuner.HalfSpan(), ticks.halfSpan) << ticks.height;
    }
}

TEST(DialSliderValue, KeepsItsTicksWhenItsSizeChanges) {
    TestTuner tuner;
    tuner.Create(0, 0, 150, 240);
    tuner.SetSize(150, 480);
    EXPECT_EQ(tuner.TickCount(), 20);
    EXPECT_EQ(tuner.HalfSpan(), 10);
}

TEST(DialSliderValue, TunesAnywhere) {
    TestTuner tuner;
    tuner.Prepare(FmScale(), 98.0f);
    for (const float value : {200.0f, 0.0f, -5.0f, 87.5f, kInfinity}) {
        tuner.SetVaule(value);
        EXPECT_EQ(tuner.Value(), value) << "not clamped";
    }
}

TEST(DialSliderValue, AsksForARepaintOnlyForAnotherValue) {
    TestTuner tuner;
    tuner.Prepare(FmScale(), 98.0f);
    EXPECT_FALSE(Repaints(tuner, [&] { tuner.SetVaule(98.0f); }));
    EXPECT_TRUE(Repaints(tuner, [&] { tuner.SetVaule(std::nextafter(98.0f, 99.0f)); }));
    EXPECT_TRUE(Repaints(tuner, [&] { tuner.SetVaule(98.0f); }));
}

TEST(DialSliderValue, AsksForARepaintWhateverElseItIsSetTo) {
    Scene scene;
    TestTuner tuner;
    tuner.Prepare(FmScale(), 98.0f);
    EXPECT_TRUE(Repaints(tuner, [&] { tuner.SetFont(CLQFontManager::GetInstance()->GetDefaultFont()); }));
    EXPECT_TRUE(Repaints(tuner, [&] { tuner.SetFontSize(12, 12); }));
    EXPECT_TRUE(Repaints(tuner, [&] { tuner.SetScal(0.2f); }));
    EXPECT_TRUE(Repaints(tuner, [&] { tuner.SetDec(false); }));
    EXPECT_TRUE(Repaints(tuner, [&] { tuner.SetBoundScalFreqID(AmScale()); }));
    EXPECT_TRUE(Repaints(tuner, [&] { tuner.AddShortcut(98.0f); }));
    EXPECT_TRUE(Repaints(tuner, [&] { tuner.SetShortCut(0, 99.0f); }));
    EXPECT_FALSE(Repaints(tuner, [&] { tuner.DeleteShortcut(98.0f); })) << "there is none";
    EXPECT_TRUE(Repaints(tuner, [&] { tuner.DeleteShortcut(99.0f); }));
    EXPECT_TRUE(Repaints(tuner, [&] { tuner.DeleteAllCut(); }));
    EXPECT_TRUE(Repaints(tuner, [&] { tuner.SetBKgnd(L"A.lqi"); }));
    EXPECT_TRUE(Repaints(tuner, [&] { tuner.SetPointgnd(L"A.lqi"); }));
    EXPECT_TRUE(Repaints(tuner, [&] { tuner.SetIcongnd(L"A.lqi"); }));
    EXPECT_TRUE(Repaints(tuner, [&] { tuner.SetShadowGnd(L"A.lqi"); }));
}

TEST(DialSliderValue, TakesOverBoundsAndKeepsItsValue) {
    TestTuner tuner;
    tuner.SetVaule(98.0f);
    tuner.SetBoundScalFreqID(AmScale());
    EXPECT_EQ(tuner.Value(), 98.0f);
    EXPECT_EQ(tuner.IsBound(530.0f), 1);
    EXPECT_EQ(tuner.IsBound(1603.0f), 2);
    EXPECT_EQ(tuner.FormatStr(98.7f), L"98") << "whole numbers";
}

TEST(DialSliderValue, CountsTheBoundsThemselvesAsInside) {
    TestTuner tuner;
    tuner.SetBoundScalFreqID(FmScale());
    EXPECT_EQ(tuner.IsBound(87.5f), 0);
    EXPECT_EQ(tuner.IsBound(100.0f), 0);
    EXPECT_EQ(tuner.IsBound(108.0f), 0);
    EXPECT_EQ(tuner.IsBound(std::nextafter(87.5f, 0.0f)), 1);
    EXPECT_EQ(tuner.IsBound(std::nextafter(108.0f, 200.0f)), 2);
    EXPECT_EQ(tuner.IsBound(kNaN), 0);
}

TEST(DialSliderValue, SplitsAFrequencyAsTheWheelDoes) {
    TestTuner tuner;
    EXPECT_EQ(tuner.GetIntNum(87.5f), 87);
    EXPECT_EQ(tuner.GetDocNum(87.5f), 50);
    EXPECT_EQ(tuner.GetIntNum(87.999f), 88);
    EXPECT_EQ(tuner.GetDocNum(87.999f), 0);
    EXPECT_EQ(tuner.GetDocNum(-0.5f), -49);
    EXPECT_EQ(tuner.GetDocNum(0x1.5c126ep+6f), 2) << "in single precision";
    EXPECT_EQ(tuner.GetDocNum(kNaN), 0);
}

TEST(DialSliderValue, WritesOneDecimal) {
    const TestTuner tuner;
    EXPECT_EQ(tuner.FormatStr(87.5f), L"87.5");
    EXPECT_EQ(tuner.FormatStr(108.0f), L"108.0");
    EXPECT_EQ(tuner.FormatStr(0.0f), L"0.0");
    EXPECT_EQ(tuner.FormatStr(87.55f), L"87.6") << "stored as 87.550003";
    EXPECT_EQ(tuner.FormatStr(87.45f), L"87.4") << "stored as 87.449997";
    EXPECT_EQ(tuner.FormatStr(0.25f), L"0.2") << "a tie, to even";
    EXPECT_EQ(tuner.FormatStr(0.75f), L"0.8") << "a tie, to even";
    EXPECT_EQ(tuner.FormatStr(99.96f), L"100.0");
    EXPECT_EQ(tuner.FormatStr(-0.04f), L"-0.0");
    EXPECT_EQ(tuner.FormatStr(-12.34f), L"-12.3");
}

TEST(DialSliderValue, CutsTheFractionOfWholeNumbers) {
    TestTuner tuner;
    tuner.SetDec(false);
    EXPECT_EQ(tuner.FormatStr(531.0f), L"531");
    EXPECT_EQ(tuner.FormatStr(531.999f), L"531");
    EXPECT_EQ(tuner.FormatStr(-3.7f), L"-3");
    EXPECT_EQ(tuner.FormatStr(-0.7f), L"0");
}

TEST(DialSliderValue, CutsALabelToNineCharacters) {
    TestTuner tuner;
    EXPECT_EQ(tuner.FormatStr(1234567.0f), L"1234567.0");
    EXPECT_EQ(tuner.FormatStr(12345678.0f), L"12345678.");
    EXPECT_EQ(tuner.FormatStr(1.0e9f), L"100000000");
    EXPECT_EQ(tuner.FormatStr(-std::numeric_limits<float>::max()), L"-34028234");
    EXPECT_EQ(tuner.FormatStr(kInfinity), L"inf");
    EXPECT_EQ(tuner.FormatStr(kNaN), L"nan");
    tuner.SetDec(false);
    EXPECT_EQ(tuner.FormatStr(3.0e9f), L"214748364") << "the largest int";
    EXPECT_EQ(tuner.FormatStr(-kInfinity), L"-21474836");
    EXPECT_EQ(tuner.FormatStr(kNaN), L"0");
}

TEST(DialSliderPresets, KeepTheOrderInWhichTheyWereAdded) {
    TestTuner tuner;
    for (const float preset : {98.0f, 88.0f, 98.0f, 500.0f, -1.0f, 0.0f, 98.0f})
        tuner.AddShortcut(preset);
    EXPECT_EQ(tuner.Shortcuts(), (Floats{98.0f, 88.0f, 98.0f, 500.0f, -1.0f, 0.0f, 98.0f}));
    tuner.SetShortCut(1, 90.0f);
    tuner.SetShortCut(6, 91.0f);
    EXPECT_EQ(tuner.Shortcuts(), (Floats{98.0f, 90.0f, 98.0f, 500.0f, -1.0f, 0.0f, 91.0f}));
    tuner.DeleteAllCut();
    EXPECT_TRUE(tuner.Shortcuts().empty());
    tuner.DeleteAllCut();
    EXPECT_TRUE(tuner.Shortcuts().empty());
}

TEST(DialSliderPresets, AreDeletedOneAtATimeTheFirstFirst) {
    TestTuner tuner;
    for (const float preset : {87.5f, 98.0f, 87.5f})
        tuner.AddShortcut(preset);
    tuner.DeleteShortcut(87.5f);
    EXPECT_EQ(tuner.Shortcuts(), (Floats{98.0f, 87.5f}));
    tuner.DeleteShortcut(87.6f);
    EXPECT_EQ(tuner.Shortcuts(), (Floats{98.0f, 87.5f}));
    tuner.DeleteShortcut(87.5f);
    EXPECT_EQ(tuner.Shortcuts(), (Floats{98.0f}));
    tuner.DeleteShortcut(98.0f);
    tuner.DeleteShortcut(98.0f);
    EXPECT_TRUE(tuner.Shortcuts().empty());
}

TEST(DialSliderPresets, AreDeletedByTheirHundredthsCutOff) {
    TestTuner tuner;
    tuner.AddShortcut(87.499f);
    tuner.DeleteShortcut(87.5f);
    EXPECT_EQ(tuner.Shortcuts(), (Floats{87.499f})) << "8749 is not 8750";
    tuner.DeleteShortcut(87.4909f);
    EXPECT_TRUE(tuner.Shortcuts().empty()) << "both are 8749";
    tuner.AddShortcut(87.5f);
    tuner.DeleteShortcut(87.5099f);
    EXPECT_TRUE(tuner.Shortcuts().empty()) << "both are 8750";
}

TEST(DialSliderPresets, AreComparedInSinglePrecision) {
    TestTuner tuner;
    // 100.1 is stored as 100.0999985; a product in double precision would be cut to 10009.
    tuner.AddShortcut(100.1f);
    tuner.DeleteShortcut(100.104f);
    EXPECT_TRUE(tuner.Shortcuts().empty());
}

TEST(DialSliderPresets, OfAnySizeCanBeDeleted) {
    TestTuner tuner;
    for (const float preset : {kNaN, kInfinity, -kInfinity, std::numeric_limits<float>::max()})
        tuner.AddShortcut(preset);
    tuner.DeleteShortcut(kInfinity);
    EXPECT_EQ(tuner.Shortcuts().size(), 3u);
    tuner.DeleteShortcut(1.0e30f);
    EXPECT_EQ(tuner.Shortcuts().size(), 2u) << "beyond all hundredths one is as good as another";
    tuner.DeleteShortcut(kNaN);
    tuner.DeleteShortcut(-1.0e30f);
    EXPECT_TRUE(tuner.Shortcuts().empty());
}

TEST(DialSliderPresetsDeathTest, EndTheProgramWhenAnIndexIsNotThere) {
    TestTuner tuner;
    EXPECT_DEATH(tuner.SetShortCut(0, 98.0f),
                 "^CLQDialSlider::SetShortCut: invalid parameter: .* 0 of 0 .*\n$");
    tuner.AddShortcut(88.0f);
    tuner.AddShortcut(98.0f);
    EXPECT_DEATH(tuner.SetShortCut(2, 98.0f), "index 2 of 2 elements");
    EXPECT_DEATH(tuner.SetShortCut(-1, 98.0f), "index -1 of 2 elements");
    EXPECT_DEATH(tuner.SetShortCut(std::numeric_limits<int>::min(), 98.0f), "invalid parameter");
    EXPECT_DEATH(tuner.SetShortCut(std::numeric_limits<int>::max(), 98.0f), "invalid parameter");
}

TEST(DialSliderLayout, CountsEveryRowThatADragBegan) {
    for (int distance = 0; distance <= 40; ++distance) {
        int steps = 0;
        if (distance >= 37)
            steps = 4;
        else if (distance >= 25)
            steps = 3;
        else if (distance >= 13)
            steps = 2;
        else if (distance >= 5)
            steps = 1;
        EXPECT_EQ(dial_slider::DragSteps(distance), steps) << distance;
        EXPECT_EQ(dial_slider::DragSteps(-distance), -steps) << -distance;
    }
    EXPECT_EQ(dial_slider::DragSteps(4294967295), 357913942) << "the longest one that there is";
}

TEST(DialSliderLayout, StandsInTheMiddleOnAnEvenPixel) {
    EXPECT_EQ(dial_slider::Middle(240), 120);
    EXPECT_EQ(dial_slider::Middle(241), 120);
    EXPECT_EQ(dial_slider::Middle(242), 122);
    EXPECT_EQ(dial_slider::Middle(250), 126);
    EXPECT_EQ(dial_slider::Middle(264), 132);
    EXPECT_EQ(dial_slider::Middle(0), 0);
}

}  // namespace
}  // namespace korvane::test
