#include <cstdint>
#include <fstream>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "controls/parts/NumSliderLayout.h"

#include "tests/controls/TestWheel.h"
#include "tests/support/ReferenceImage.h"
#include "tests/support/Scene.h"

namespace {

using korvane::test::AmBounds;
using korvane::test::FmBounds;
using korvane::test::kTicksPerStep;
using korvane::test::kWheelHeight;
using korvane::test::kWheelWidth;
using korvane::test::kWheelX;
using korvane::test::kWheelY;
using korvane::test::MatchesReference;
using korvane::test::PixelsOf;
using korvane::test::Scene;
using korvane::test::TestWheel;
using korvane::test::WriteImage;

namespace wheel_layout = korvane::num_slider;

constexpr int kScreenWidth = 400;
constexpr int kScreenHeight = 270;
constexpr int kShadowHeight = 76;
constexpr int kSeekSize = 20;

CLQSurfHandle NewSurface(int width, int height) {
    return CLQSurfManager::GetInstance()->CreateSurface(width, height, eSurface_ARGB8888, true);
}

/// Black that is strongest at the outer edge.
CLQSurfHandle Shadow(bool top) {
    CLQSurfHandle shadow = NewSurface(kWheelWidth, kShadowHeight);
    for (int y = 0; y < kShadowHeight; ++y) {
        const int distance = top ? y : kShadowHeight - 1 - y;
        _LQColor black = {0, 0, 0, static_cast<unsigned char>(220 - 220 * distance / kShadowHeight)};
        shadow.FillRect(0, y, kWheelWidth, y + 1, black, false);
    }
    return shadow;
}

CLQSurfHandle Arrow(bool up) {
    CLQSurfHandle arrow = NewSurface(kSeekSize, kSeekSize);
    _LQColor amber = {255, 170, 0, 255};
    for (int y = 0; y < kSeekSize; ++y) {
        const int half = (up ? y : kSeekSize - 1 - y) / 2;
        arrow.FillRect(kSeekSize / 2 - half, y, kSeekSize / 2 + half, y + 1, amber, false);
    }
    return arrow;
}

/// A wheel in a window with a plain background, with images and a label.
class NumSliderDraw : public testing::Test {
  protected:
    NumSliderDraw() : scene(kScreenWidth, kScreenHeight) {
        _LQColor navy = {16, 32, 72, 255};
        window.Create(0, 0, kScreenWidth, kScreenHeight);
        window.EnableBkgColor(true, &navy);
    }

    void WriteImages() {
        CLQSurfHandle shadowUp = Shadow(true);
        CLQSurfHandle shadowDown = Shadow(false);
        CLQSurfHandle arrowUp = Arrow(true);
        CLQSurfHandle arrowDown = Arrow(false);
        WriteImage(scene.ImageFolder() / "NumberShadowUp.lqi", shadowUp);
        WriteImage(scene.ImageFolder() / "NumberShadowDown.lqi", shadowDown);
        WriteImage(scene.ImageFolder() / "ArrowUp.lqi", arrowUp);
        WriteImage(scene.ImageFolder() / "ArrowDown.lqi", arrowDown);
    }

    void Show(const _FreqStruct_& bounds, float value) {
        WriteImages();
        wheel.Prepare(bounds, value);
        wheel.SetSeekUpGnd(L"ArrowUp.lqi");
        wheel.SetSeekDownGnd(L"ArrowDown.lqi");
        window.AddChild(&wheel);
        scene.Pump();
    }

    void Roll(bool down) {
        wheel.SlideMove(down);
        wheel.StartMove();
        scene.Pump();
    }

    static CLQSurfHandle& Screen() { return CLQScreen::GetInstance()->GetScreenSurfHandle(); }

    /// The pictures <name>-tick-1 to -4 of one step.
    void ExpectStep(const std::string& name) {
        for (int tick = 1; tick <= kTicksPerStep; ++tick) {
            scene.Advance(wheel_layout::kTickPeriodMs);
            EXPECT_TRUE(MatchesReference(Screen(), name + "-tick-" + std::to_string(tick)));
            ExpectFullRepaintIsTheSame();
        }
    }

    void ExpectFullRepaintIsTheSame() {
        const auto partial = scene.Pixels();
        scene.FillWithGarbage();
        CLQScreen::GetInstance()->InvalidateAll();
        scene.Pump();
        EXPECT_EQ(scene.Pixels(), partial) << "painting a part gives the pixels of the whole";
    }

    Scene scene;
    CLQWindow window;
    TestWheel wheel;
};

TEST_F(NumSliderDraw, ShowsOnlyItsImagesWithoutAValue) {
    Show(FmBounds(), 98.0f);
    wheel.SetBoundScalFreqID(FmBounds());
    scene.Pump();
    EXPECT_TRUE(MatchesReference(Screen(), "num-slider-empty"));
}

TEST_F(NumSliderDraw, ShowsAFrequencyBetweenItsNeighbours) {
    Show(FmBounds(), 98.0f);
    EXPECT_TRUE(MatchesReference(Screen(), "num-slider-fm"));
    ExpectFullRepaintIsTheSame();
}

TEST_F(NumSliderDraw, RollsTheFractionAlone) {
    Show(FmBounds(), 87.9f);
    Roll(false);
    ExpectStep("num-slider-fm-up");
}

TEST_F(NumSliderDraw, RollsBothColumnsWhenTheFractionCarries) {
    Show(FmBounds(), 87.95f);
    Roll(false);
    ExpectStep("num-slider-fm-carry");
}

TEST_F(NumSliderDraw, RollsBothColumnsWhenTheFractionBorrows) {
    Show(FmBounds(), 88.0f);
    Roll(true);
    ExpectStep("num-slider-fm-borrow");
}

TEST_F(NumSliderDraw, ShowsAWholeNumberBetweenItsNeighbours) {
    Show(AmBounds(), 702.0f);
    EXPECT_TRUE(MatchesReference(Screen(), "num-slider-am"));
    ExpectFullRepaintIsTheSame();
}

TEST_F(NumSliderDraw, RollsWholeNumbers) {
    Show(AmBounds(), 702.0f);
    Roll(true);
    ExpectStep("num-slider-am-down");
}

TEST_F(NumSliderDraw, RollsWholeNumbersToFourDigits) {
    Show(AmBounds(), 999.0f);
    Roll(false);
    ExpectStep("num-slider-am-carry");
}

TEST_F(NumSliderDraw, StoppedInMidStepLeavesThreeRowsWhereTheyAre) {
    Show(FmBounds(), 87.95f);
    Roll(false);
    scene.Advance(2 * wheel_layout::kTickPeriodMs);
    wheel.MoveStop();
    scene.Pump();
    EXPECT_TRUE(MatchesReference(Screen(), "num-slider-fm-stopped"));
    ExpectFullRepaintIsTheSame();
}

TEST_F(NumSliderDraw, StoppedInMidStepLeavesThreeWholeNumbersWhereTheyAre) {
    Show(AmBounds(), 702.0f);
    Roll(true);
    scene.Advance(2 * wheel_layout::kTickPeriodMs);
    wheel.MoveStop();
    scene.Pump();
    EXPECT_TRUE(MatchesReference(Screen(), "num-slider-am-stopped"));
    ExpectFullRepaintIsTheSame();
}

TEST_F(NumSliderDraw, ShowsOnlyItsImagesWhileItRollsWithoutAValue) {
    for (const _FreqStruct_& bounds : {FmBounds(), AmBounds()}) {
        Show(bounds, bounds.minimum);
        wheel.SetBoundScalFreqID(bounds);
        scene.Pump();
        EXPECT_TRUE(MatchesReference(Screen(), "num-slider-empty"));
        const auto empty = scene.Pixels();
        Roll(false);
        for (int tick = 1; tick < kTicksPerStep; ++tick) {
            scene.Advance(wheel_layout::kTickPeriodMs);
            EXPECT_EQ(scene.Pixels(), empty) << "tick " << tick;
        }
        scene.Advance(wheel_layout::kTickPeriodMs);
        EXPECT_NE(scene.Pixels(), empty) << "the step ends at a value";
        wheel.MoveStop();
    }
}

TEST_F(NumSliderDraw, LabelLiesOverTheBackground) {
    Show(FmBounds(), 98.0f);
    const std::uint32_t background = scene.PixelAt(0, 0);
    int kept = 0;
    int inked = 0;
    for (int y = 0; y < wheel_layout::kLabelHeight; ++y) {
        for (int x = 0; x < wheel_layout::kLabelWidth; ++x) {
            const std::uint32_t pixel =
                scene.PixelAt(kWheelX + wheel_layout::kLabelLeft + x, kWheelY + wheel_layout::kLabelTop + y);
            ++(pixel == background ? kept : inked);
        }
    }
    EXPECT_GT(kept, 500);
    EXPECT_GT(inked, 100);
}

TEST_F(NumSliderDraw, OneTickTouchesItsOwnRectangleAndNoOtherPixel) {
    Show(FmBounds(), 98.0f);
    Roll(false);
    scene.FillWithGarbage();
    const auto before = scene.Pixels();
    CLQScreen::GetInstance()->ResetCounters();
    scene.Advance(wheel_layout::kTickPeriodMs);
    const auto after = scene.Pixels();
    for (int y = 0; y < kScreenHeight; ++y) {
        for (int x = 0; x < kScreenWidth; ++x) {
            const bool inside =
                x >= kWheelX && x < kWheelX + kWheelWidth && y >= kWheelY && y < kWheelY + kWheelHeight;
            const auto at = static_cast<std::size_t>(y * kScreenWidth + x);
            if (!inside) {
                ASSERT_EQ(after[at], before[at]) << x << ", " << y;
            }
        }
    }
    const korvane::ScreenCounters counters = CLQScreen::GetInstance()->GetCounters();
    EXPECT_EQ(counters.paints, 1u);
    EXPECT_EQ(counters.paintedPixels, static_cast<std::uint64_t>(kWheelWidth * kWheelHeight));
    EXPECT_EQ(counters.flips, 1u);
    EXPECT_EQ(counters.flippedPixels, static_cast<std::uint64_t>(kWheelWidth * kWheelHeight));
}

TEST_F(NumSliderDraw, PaintsNothingWhileItStands) {
    Show(FmBounds(), 98.0f);
    CLQScreen::GetInstance()->ResetCounters();
    scene.Advance(10000);
    EXPECT_EQ(CLQScreen::GetInstance()->GetCounters().paints, 0u);
}

TEST_F(NumSliderDraw, DrawsNothingInAWindowUnlessItIsMarked) {
    Show(FmBounds(), 98.0f);
    ASSERT_FALSE(wheel.IsNeedRedraw());
    CLQSurfHandle canvas = NewSurface(kScreenWidth, kScreenHeight);
    const auto blank = PixelsOf(canvas);
    wheel.Draw(canvas);
    EXPECT_EQ(PixelsOf(canvas), blank);

    wheel.Redraw(true);
    wheel.Draw(canvas);
    EXPECT_NE(PixelsOf(canvas), blank);
    EXPECT_FALSE(wheel.IsNeedRedraw());
}

TEST_F(NumSliderDraw, DrawsAlwaysAndKeepsItsMarkWithoutAWindow) {
    wheel.Prepare(FmBounds(), 98.0f);
    CLQSurfHandle first = NewSurface(kScreenWidth, kScreenHeight);
    CLQSurfHandle second = NewSurface(kScreenWidth, kScreenHeight);
    const auto blank = PixelsOf(first);
    wheel.Draw(first);
    EXPECT_NE(PixelsOf(first), blank);
    EXPECT_TRUE(wheel.IsNeedRedraw());
    wheel.Redraw(false);
    wheel.Draw(second);
    EXPECT_EQ(PixelsOf(second), PixelsOf(first));
}

TEST_F(NumSliderDraw, KeepsItsNumbersInsideItsRectangle) {
    constexpr int kShort = 100;
    for (const _FreqStruct_& bounds : {FmBounds(), AmBounds()}) {
        wheel.Prepare(bounds, bounds.minimum);
        wheel.SetCurrFreqID(L"");
        wheel.SetSize(150, kShort);
        wheel.StartMove();
        CLQSurfHandle canvas = NewSurface(kScreenWidth, kScreenHeight);
        wheel.Draw(canvas);
        const auto pixels = PixelsOf(canvas);
        int inked = 0;
        for (int y = 0; y < kScreenHeight; ++y) {
            for (int x = 0; x < kScreenWidth; ++x) {
                const bool inside = x >= kWheelX && x < kWheelX + 150 && y >= kWheelY && y < kWheelY + kShort;
                const bool ink = pixels[static_cast<std::size_t>(y * kScreenWidth + x)] != 0;
                ASSERT_TRUE(inside || !ink) << x << ", " << y;
                inked += ink ? 1 : 0;
            }
        }
        EXPECT_GT(inked, 0);
    }
}

/// First and last column with ink in a row of pixels given by its edges.
struct Ink {
    int left = -1;
    int right = -1;
};

Ink InkBetween(CLQSurfHandle canvas, int top, int bottom) {
    const auto pixels = PixelsOf(canvas);
    Ink ink;
    for (int x = 0; x < canvas.GetWidth(); ++x) {
        for (int y = top; y < bottom; ++y) {
            if (pixels[static_cast<std::size_t>(y * canvas.GetWidth() + x)] == 0)
                continue;
            if (ink.left < 0)
                ink.left = x;
            ink.right = x;
        }
    }
    return ink;
}

TEST_F(NumSliderDraw, AnchorsNumbersOfFourDigitsFurtherRight) {
    // The rows show 998, 999 and 1000.
    wheel.Prepare({1.0f, 2000.0f, 1.0f, false, L""}, 999.0f);
    CLQSurfHandle canvas = NewSurface(kScreenWidth, kScreenHeight);
    wheel.Draw(canvas);
    const auto row = [&canvas](int index) {
        const int top = kWheelY + wheel_layout::CounterRowTop(index, 0);
        return InkBetween(canvas, top + 20, top + 60);
    };
    EXPECT_LE(row(0).right, kWheelX + 205);
    EXPECT_GT(row(0).right, kWheelX + 205 - 8);
    EXPECT_LE(row(1).right, kWheelX + 205);
    EXPECT_GT(row(1).right, kWheelX + 205 - 8);
    EXPECT_LE(row(2).right, kWheelX + 227);
    EXPECT_GT(row(2).right, kWheelX + 227 - 8);
}

TEST_F(NumSliderDraw, ColumnsOfTheOdometerEndAtTheirMeasures) {
    wheel.Prepare(FmBounds(), 98.0f);
    wheel.SetCurrFreqID(L"");
    CLQFont* const font = CLQFontManager::GetInstance()->GetDefaultFont();
    CLQSurfHandle canvas = NewSurface(kScreenWidth, kScreenHeight);
    wheel.Draw(canvas);
    const int fractionRight = kWheelX + font->GetStringWidth(L"100.10", false);
    const Ink middle = InkBetween(canvas, kWheelY + 75 + 10, kWheelY + 75 + 70);
    EXPECT_LE(middle.right, fractionRight);
    EXPECT_GT(middle.right, fractionRight - 8);
}

TEST_F(NumSliderDraw, PaintsAFourthRowOnlyWhileItRolls) {
    wheel.Prepare(FmBounds(), 98.0f);
    wheel.SetCurrFreqID(L"");
    wheel.SetSize(kWheelWidth, 320);
    const auto fourthRow = [this] {
        CLQSurfHandle canvas = NewSurface(kScreenWidth, 400);
        wheel.Draw(canvas);
        return InkBetween(canvas, kWheelY + 3 * 75 + 20, kWheelY + 320);
    };
    EXPECT_EQ(fourthRow().left, -1);
    wheel.StartMove();
    EXPECT_NE(fourthRow().left, -1);
    wheel.MoveStop();
    EXPECT_EQ(fourthRow().left, -1);
}

TEST_F(NumSliderDraw, ShowsNegativeNumbersWithTheirSigns) {
    wheel.Prepare({-10.0f, 10.0f, 0.05f, true, L""}, -5.5f);
    CLQSurfHandle canvas = NewSurface(kScreenWidth, kScreenHeight);
    wheel.Draw(canvas);
    EXPECT_NE(InkBetween(canvas, kWheelY, kWheelY + 75).left, -1);
}

TEST_F(NumSliderDraw, ShadowsLieOverTheNumbers) {
    WriteImages();
    CLQSurfHandle solid = NewSurface(kWheelWidth, kShadowHeight);
    _LQColor red = {255, 0, 0, 255};
    solid.FillRect(0, 0, kWheelWidth, kShadowHeight, red, false);
    WriteImage(scene.ImageFolder() / "NumberShadowUp.lqi", solid);
    WriteImage(scene.ImageFolder() / "NumberShadowDown.lqi", solid);
    wheel.Prepare(FmBounds(), 98.0f);
    window.AddChild(&wheel);
    scene.Pump();
    for (int x = 0; x < kWheelWidth; ++x) {
        for (int y = 0; y < kShadowHeight; ++y) {
            ASSERT_EQ(scene.PixelAt(kWheelX + x, kWheelY + y), 0xFFFF0000u);
            ASSERT_EQ(scene.PixelAt(kWheelX + x, kWheelY + kWheelHeight - 1 - y), 0xFFFF0000u);
        }
    }
}

TEST_F(NumSliderDraw, ShowsItsNumbersWithoutAnyImage) {
    wheel.Prepare(FmBounds(), 98.0f);
    wheel.SetSeekUpGnd(L"Missing.lqi");
    wheel.SetSeekDownGnd(nullptr);
    window.AddChild(&wheel);
    scene.Pump();
    EXPECT_TRUE(MatchesReference(Screen(), "num-slider-without-images"));
}

TEST_F(NumSliderDraw, DamagedImagesDrawNothing) {
    for (const char* name : {"NumberShadowUp.lqi", "NumberShadowDown.lqi", "Seek.lqi"})
        std::ofstream(scene.ImageFolder() / name) << "not an image";
    wheel.Prepare(FmBounds(), 98.0f);
    wheel.SetSeekUpGnd(L"Seek.lqi");
    wheel.SetSeekDownGnd(L"");
    window.AddChild(&wheel);
    scene.Pump();
    EXPECT_TRUE(MatchesReference(Screen(), "num-slider-without-images"));
}

TEST_F(NumSliderDraw, AnotherSeekImageReplacesTheFirst) {
    Show(FmBounds(), 98.0f);
    const auto before = scene.Pixels();
    wheel.SetSeekUpGnd(L"ArrowDown.lqi");
    scene.Pump();
    EXPECT_NE(scene.Pixels(), before);
    wheel.SetSeekUpGnd(L"ArrowUp.lqi");
    scene.Pump();
    EXPECT_EQ(scene.Pixels(), before);
}

TEST_F(NumSliderDraw, LoadsImagesOfTheSameNamesAnew) {
    const auto writePlain = [this](const char* name, int height, _LQColor color) {
        CLQSurfHandle image = NewSurface(kSeekSize, height);
        image.FillRect(0, 0, kSeekSize, height, color, false);
        WriteImage(scene.ImageFolder() / name, image);
    };
    const auto writeAll = [&writePlain](unsigned char blue) {
        writePlain("NumberShadowUp.lqi", kShadowHeight, {10, 0, blue, 255});
        writePlain("NumberShadowDown.lqi", kShadowHeight, {20, 0, blue, 255});
        writePlain("Up.lqi", kSeekSize, {30, 0, blue, 255});
        writePlain("Down.lqi", kSeekSize, {40, 0, blue, 255});
    };
    const auto shown = [this] {
        scene.Pump();
        const int seek = kWheelX + wheel_layout::kSeekLeft;
        const int bottom = kWheelY + kWheelHeight;
        return std::vector<std::uint32_t>{scene.PixelAt(kWheelX, kWheelY), scene.PixelAt(kWheelX, bottom - 1),
                                          scene.PixelAt(seek, kWheelY + wheel_layout::kSeekUpTop),
                                          scene.PixelAt(seek, bottom - wheel_layout::kSeekDownAboveBottom)};
    };

    writeAll(1);
    wheel.Prepare(FmBounds(), 98.0f);
    wheel.SetSeekUpGnd(L"Up.lqi");
    wheel.SetSeekDownGnd(L"Down.lqi");
    window.AddChild(&wheel);
    EXPECT_EQ(shown(), (std::vector<std::uint32_t>{0xFF0A0001, 0xFF140001, 0xFF1E0001, 0xFF280001}));

    writeAll(2);
    wheel.Invalidate();
    EXPECT_EQ(shown(), (std::vector<std::uint32_t>{0xFF0A0001, 0xFF140001, 0xFF1E0001, 0xFF280001}))
        << "a repaint reads no file";
    wheel.SetShadowGnd();
    EXPECT_EQ(shown(), (std::vector<std::uint32_t>{0xFF0A0002, 0xFF140002, 0xFF1E0001, 0xFF280001}));
    wheel.SetSeekUpGnd(L"Up.lqi");
    EXPECT_EQ(shown(), (std::vector<std::uint32_t>{0xFF0A0002, 0xFF140002, 0xFF1E0002, 0xFF280001}));
    wheel.SetSeekDownGnd(L"Down.lqi");
    EXPECT_EQ(shown(), (std::vector<std::uint32_t>{0xFF0A0002, 0xFF140002, 0xFF1E0002, 0xFF280002}));
}

TEST_F(NumSliderDraw, ShowsItsImagesWithoutAFont) {
    Show(FmBounds(), 98.0f);
    wheel.SetCurrFreqID(L"");
    wheel.SetFont(nullptr);
    scene.Pump();
    EXPECT_TRUE(MatchesReference(Screen(), "num-slider-empty"));
}

TEST_F(NumSliderDraw, UsesItsOwnFontSizeWhateverOthersSet) {
    Show(FmBounds(), 98.0f);
    const auto before = scene.Pixels();
    CLQFontManager::GetInstance()->GetDefaultFont()->SetFontSize(11, 11);
    wheel.Invalidate();
    scene.Pump();
    EXPECT_EQ(scene.Pixels(), before);
}

TEST_F(NumSliderDraw, DrawsOnAnEmptyHandle) {
    wheel.Prepare(FmBounds(), 98.0f);
    CLQSurfHandle nothing;
    wheel.Draw(nothing);
    SUCCEED();
}

TEST_F(NumSliderDraw, CopiesLookLikeTheirOriginalAlsoAfterItsEnd) {
    WriteImages();
    auto original = std::make_unique<TestWheel>();
    original->Prepare(FmBounds(), 98.0f);
    original->SetSeekUpGnd(L"ArrowUp.lqi");
    original->SetSeekDownGnd(L"ArrowDown.lqi");
    CLQSurfHandle expected = NewSurface(kScreenWidth, kScreenHeight);
    original->Draw(expected);

    TestWheel copy(*original);
    TestWheel assigned;
    assigned = *original;
    original.reset();
    for (TestWheel* other : {&copy, &assigned}) {
        CLQSurfHandle canvas = NewSurface(kScreenWidth, kScreenHeight);
        other->Draw(canvas);
        EXPECT_EQ(PixelsOf(canvas), PixelsOf(expected));
    }
}

TEST_F(NumSliderDraw, CopyKeepsItsLabelWhenTheOriginalGetsAnother) {
    wheel.Prepare(FmBounds(), 98.0f);
    TestWheel before(wheel);
    CLQSurfHandle expected = NewSurface(kScreenWidth, kScreenHeight);
    wheel.Draw(expected);
    TestWheel copy(before);
    wheel.SetCurrFreqID(L"XX");
    CLQSurfHandle canvas = NewSurface(kScreenWidth, kScreenHeight);
    copy.Draw(canvas);
    EXPECT_EQ(PixelsOf(canvas), PixelsOf(expected));
}

TEST_F(NumSliderDraw, SwipeRollsItAndATouchStopsIt) {
    Show(FmBounds(), 98.0f);
    const auto start = [](void*, void* sender) { static_cast<CLQNumSlider*>(sender)->StartMove(); };
    const auto stop = [](void*, void* sender) { static_cast<CLQNumSlider*>(sender)->MoveStop(); };
    wheel.SetMoveUpCallBack(start, nullptr);
    wheel.SetMoveDownCallBack(start, nullptr);
    wheel.SetMoveStopCallBack(stop, nullptr);

    scene.Press(kWheelX + 50, kWheelY + 150);
    scene.Move(kWheelX + 50, kWheelY + 100);
    scene.Release(kWheelX + 50, kWheelY - 10);
    EXPECT_TRUE(wheel.IsMove());
    scene.Advance(600);
    EXPECT_EQ(wheel.IntegerPart() * 100 + wheel.DecimalPart(), 9815);

    scene.Press(kWheelX + 50, kWheelY + 100);
    scene.Release(kWheelX + 50, kWheelY + 200);
    EXPECT_FALSE(wheel.IsMove());
    scene.Advance(600);
    EXPECT_EQ(wheel.IntegerPart() * 100 + wheel.DecimalPart(), 9815);

    scene.Press(kWheelX + 50, kWheelY + 100);
    scene.Release(kWheelX + 50, kWheelY + 200);
    EXPECT_TRUE(wheel.IsMove());
    scene.Advance(200);
    EXPECT_EQ(wheel.IntegerPart() * 100 + wheel.DecimalPart(), 9810);
}

}  // namespace
