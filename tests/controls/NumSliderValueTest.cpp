#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include "tests/controls/TestWheel.h"

namespace {

using korvane::test::AmBounds;
using korvane::test::FmBounds;
using korvane::test::TestWheel;

constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();

TEST(NumSliderValue, IsOfKind53AndStartsEmpty) {
    TestWheel wheel;
    EXPECT_EQ(wheel.GetKind(), 53);
    EXPECT_EQ(wheel.Value(), 0.0f);
    EXPECT_EQ(wheel.IntegerPart(), 0);
    EXPECT_EQ(wheel.DecimalPart(), 0);
    EXPECT_EQ(wheel.IntegerOffset(), 0);
    EXPECT_EQ(wheel.DecimalOffset(), 0);
    EXPECT_FALSE(wheel.IsMove());
    EXPECT_FALSE(wheel.TimerRuns());
}

TEST(NumSliderValue, CreateGivesTheResultOfTheBase) {
    TestWheel wheel;
    EXPECT_TRUE(wheel.Create(1, 2, 3, 4));
    EXPECT_FALSE(wheel.Create(1, 2, -3, 4));
    int x = 0, y = 0, width = 0, height = 0;
    wheel.GetPos(x, y);
    wheel.GetSize(width, height);
    EXPECT_EQ(x, 1);
    EXPECT_EQ(y, 2);
    EXPECT_EQ(width, 3);
    EXPECT_EQ(height, 4);
}

TEST(NumSliderValue, SplitsEveryStepOfTheFmBand) {
    TestWheel wheel;
    for (int hundredths = 8750; hundredths <= 10800; hundredths += 5) {
        const float value = static_cast<float>(hundredths) / 100.0f;
        EXPECT_EQ(wheel.GetIntNum(value), hundredths / 100) << value;
        EXPECT_EQ(wheel.GetDocNum(value), hundredths % 100) << value;
    }
}

TEST(NumSliderValue, SplitsEveryStepOfTheAmBand) {
    TestWheel wheel;
    for (int value = 531; value <= 1602; value += 9) {
        EXPECT_EQ(wheel.GetIntNum(static_cast<float>(value)), value);
        EXPECT_EQ(wheel.GetDocNum(static_cast<float>(value)), 0);
    }
}

TEST(NumSliderValue, GuardsTheSplitAgainstValuesJustBelowAHundredth) {
    TestWheel wheel;
    EXPECT_EQ(wheel.GetIntNum(87.4999f), 87);
    EXPECT_EQ(wheel.GetDocNum(87.4999f), 50);
    EXPECT_EQ(wheel.GetIntNum(87.999f), 88);
    EXPECT_EQ(wheel.GetDocNum(87.999f), 0);
    EXPECT_EQ(wheel.GetDocNum(87.497f), 49);
}

TEST(NumSliderValue, FormsTheHundredthsInSinglePrecision) {
    TestWheel wheel;
    // A product in double precision lies just below the hundredth that the one in single precision rounds to.
    EXPECT_EQ(wheel.GetDocNum(0x1.5c126ep+6f), 2);
    EXPECT_EQ(wheel.GetDocNum(0x1.5c1cacp+6f), 3);
    EXPECT_EQ(wheel.GetDocNum(0x1.5c3126p+6f), 5);
    // Here the sum with the guard is rounded up to single precision before.
    EXPECT_EQ(wheel.GetDocNum(0x1.5c45a2p+6f), 7);
}

TEST(NumSliderValue, SplitsANegativeValueTowardZero) {
    TestWheel wheel;
    EXPECT_EQ(wheel.GetIntNum(-1.5f), -1);
    EXPECT_EQ(wheel.GetDocNum(-1.5f), -49) << "the guard is added, whatever the sign";
    EXPECT_EQ(wheel.GetIntNum(-0.5f), 0);
    EXPECT_EQ(wheel.GetDocNum(-0.5f), -49);
}

TEST(NumSliderValue, SplitsWhatFitsNoIntAtTheEndsOfItsRange) {
    TestWheel wheel;
    EXPECT_EQ(wheel.GetIntNum(3.0e9f), std::numeric_limits<int>::max() / 100);
    EXPECT_EQ(wheel.GetIntNum(kInfinity), std::numeric_limits<int>::max() / 100);
    EXPECT_EQ(wheel.GetIntNum(-kInfinity), std::numeric_limits<int>::min() / 100);
    EXPECT_EQ(wheel.GetDocNum(kInfinity), std::numeric_limits<int>::max() % 100);
    EXPECT_EQ(wheel.GetDocNum(std::numeric_limits<float>::max()), std::numeric_limits<int>::max() % 100);
    EXPECT_EQ(wheel.GetIntNum(kNaN), 0);
    EXPECT_EQ(wheel.GetDocNum(kNaN), 0);
}

TEST(NumSliderValue, CountsTheBoundsThemselvesAsInside) {
    TestWheel wheel;
    wheel.SetBoundScalFreqID(FmBounds());
    EXPECT_EQ(wheel.IsBound(87.5f), 0);
    EXPECT_EQ(wheel.IsBound(100.0f), 0);
    EXPECT_EQ(wheel.IsBound(108.0f), 0);
    EXPECT_EQ(wheel.IsBound(std::nextafter(87.5f, 0.0f)), 1);
    EXPECT_EQ(wheel.IsBound(std::nextafter(108.0f, 200.0f)), 2);
    EXPECT_EQ(wheel.IsBound(kInfinity), 2);
    EXPECT_EQ(wheel.IsBound(-kInfinity), 1);
    EXPECT_EQ(wheel.IsBound(kNaN), 0);
}

TEST(NumSliderValue, ClampsToTheBounds) {
    TestWheel wheel;
    wheel.Prepare(FmBounds(), 200.0f);
    EXPECT_EQ(wheel.Value(), 108.0f);
    EXPECT_EQ(wheel.IntegerPart(), 108);
    EXPECT_EQ(wheel.DecimalPart(), 0);
    wheel.SetVaule(1.0f);
    EXPECT_EQ(wheel.Value(), 87.5f);
    EXPECT_EQ(wheel.IntegerPart(), 87);
    EXPECT_EQ(wheel.DecimalPart(), 50);
    wheel.SetVaule(0.0f);
    EXPECT_EQ(wheel.Value(), 87.5f);
}

TEST(NumSliderValue, TakesTheBoundsThemselvesWhereTheyAreEqual) {
    TestWheel wheel;
    wheel.Prepare({100.0f, 100.0f, 0.05f, true, L""}, 95.0f);
    EXPECT_EQ(wheel.Value(), 100.0f);
    wheel.SetVaule(105.0f);
    EXPECT_EQ(wheel.Value(), 100.0f);
}

TEST(NumSliderValue, CutsTheFractionOffWholeNumbersAndLeavesTheHundredths) {
    TestWheel wheel;
    wheel.Prepare(FmBounds(), 98.75f);
    ASSERT_EQ(wheel.DecimalPart(), 75);
    wheel.SetDec(false);
    // 99.999 with the guard would be 100.
    wheel.SetVaule(99.999f);
    EXPECT_EQ(wheel.IntegerPart(), 99);
    EXPECT_EQ(wheel.DecimalPart(), 75);
    wheel.SetDec(true);
    wheel.SetVaule(99.999f);
    EXPECT_EQ(wheel.IntegerPart(), 100);
    EXPECT_EQ(wheel.DecimalPart(), 0);
}

TEST(NumSliderValue, BoundsLeaveItWithoutAValue) {
    TestWheel wheel;
    wheel.Prepare(FmBounds(), 98.0f);
    wheel.SetBoundScalFreqID(AmBounds());
    EXPECT_EQ(wheel.Value(), 0.0f);
    EXPECT_EQ(wheel.IsBound(530.0f), 1);
    EXPECT_EQ(wheel.IsBound(1603.0f), 2);
    wheel.SetVaule(999.0f);
    EXPECT_EQ(wheel.Value(), 999.0f);
    EXPECT_EQ(wheel.IntegerPart(), 999);
}

TEST(NumSliderValue, EverySetValueResetsTheColumnsAndAsksForARepaint) {
    TestWheel wheel;
    wheel.Prepare(FmBounds(), 87.95f);
    wheel.SlideMove(false);
    wheel.StartMove();
    wheel.Tick(2);
    ASSERT_EQ(wheel.IntegerOffset(), -38);
    ASSERT_EQ(wheel.DecimalOffset(), -38);
    wheel.Redraw(false);
    wheel.SetVaule(wheel.Value());
    EXPECT_EQ(wheel.IntegerOffset(), 0);
    EXPECT_EQ(wheel.DecimalOffset(), 0);
    EXPECT_TRUE(wheel.IsNeedRedraw());
}

TEST(NumSliderValue, EverySetterOfWhatShowsAsksForARepaint) {
    TestWheel wheel;
    wheel.Prepare(FmBounds(), 98.0f);
    const auto asks = [&wheel](auto set) {
        wheel.Redraw(false);
        set();
        return wheel.IsNeedRedraw();
    };
    EXPECT_TRUE(asks([&] { wheel.SetFont(nullptr); }));
    EXPECT_TRUE(asks([&] { wheel.SetFontSize(10, 10); }));
    EXPECT_TRUE(asks([&] { wheel.SetScal(0.1f); }));
    EXPECT_TRUE(asks([&] { wheel.SetDec(false); }));
    EXPECT_TRUE(asks([&] { wheel.SetShadowGnd(); }));
    EXPECT_TRUE(asks([&] { wheel.SetSeekUpGnd(L"Up.lqi"); }));
    EXPECT_TRUE(asks([&] { wheel.SetSeekDownGnd(L"Down.lqi"); }));
    EXPECT_TRUE(asks([&] { wheel.SetCurrFreqID(L"MHz"); }));
    EXPECT_TRUE(asks([&] { wheel.SetBoundScalFreqID(FmBounds()); }));
    EXPECT_TRUE(asks([&] { wheel.StartMove(); }));
    EXPECT_TRUE(asks([&] { wheel.MoveStop(); }));
}

TEST(NumSliderValue, TakesAnyNumberWithoutHarm) {
    TestWheel wheel;
    CLQSurfHandle nothing;
    for (const float bad : {kNaN, kInfinity, -kInfinity, 3.4e38f, -3.4e38f, 1.0e-45f, -1.0f}) {
        for (const bool decimal : {true, false}) {
            wheel.Prepare({bad, bad, bad, decimal, L"x"}, bad);
            wheel.SetScal(bad);
            for (const bool down : {true, false}) {
                wheel.SlideMove(down);
                wheel.StartMove();
                wheel.Tick(9);
                wheel.Draw(nothing);
                wheel.MoveStop();
            }
        }
    }
    wheel.Prepare({kNaN, kNaN, 1.0f, true, L""}, kNaN);
    EXPECT_EQ(wheel.IntegerPart(), 0);
    EXPECT_EQ(wheel.DecimalPart(), 0);
}

TEST(NumSliderValue, TakesAnyFontSizeWithAndWithoutAFont) {
    TestWheel wheel;
    for (const int size :
         {0, -1, 1, 512, 100000, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        wheel.SetFont(nullptr);
        wheel.SetFontSize(size, size);
        wheel.SetFont(CLQFontManager::GetInstance()->GetDefaultFont());
        wheel.SetFontSize(size, size);
        wheel.CheckPointIn(0, 0);
    }
    SUCCEED();
}

TEST(NumSliderValue, AppliesTheFontSizeAtOnce) {
    TestWheel wheel;
    CLQFont* const font = CLQFontManager::GetInstance()->GetDefaultFont();
    font->SetFontSize(12, 12);
    wheel.SetFont(font);
    int width = 0, height = 0;
    font->GetFontSize(width, height);
    EXPECT_EQ(height, 12) << "setting the font applies nothing";
    wheel.SetFontSize(33, 44);
    font->GetFontSize(width, height);
    EXPECT_EQ(width, 33);
    EXPECT_EQ(height, 44);
}

TEST(NumSliderValue, LabelLeavesTheDefaultFontAtThirtyPixels) {
    TestWheel wheel;
    CLQFont* const font = CLQFontManager::GetInstance()->GetDefaultFont();
    font->SetFontSize(12, 12);
    wheel.SetCurrFreqID(L"MHz");
    int width = 0, height = 0;
    font->GetFontSize(width, height);
    EXPECT_EQ(width, 30);
    EXPECT_EQ(height, 30);
}

TEST(NumSliderValue, TakesAnyLabel) {
    TestWheel wheel;
    wheel.SetCurrFreqID(nullptr);
    wheel.SetCurrFreqID(L"");
    wheel.SetCurrFreqID(std::wstring(100000, L'W').c_str());
    wheel.SetCurrFreqID(L"\n\t\x7F\xFFFE");
    SUCCEED();
}

}  // namespace
