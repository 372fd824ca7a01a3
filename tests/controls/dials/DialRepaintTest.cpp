#include <gtest/gtest.h>

#include "engine/window/Screen.h"
#include "engine/window/Window.h"

#include "tests/controls/dials/TestGauge.h"
#include "tests/controls/dials/TestTuner.h"
#include "tests/support/AllocationCount.h"

namespace korvane::test {
namespace {

TEST(DialScaleRepaint, AllocatesNothingOnceItsImagesAreLoaded) {
    Scene scene(200, 180);
    CLQSurfHandle image = Filled(60, 9, {255, 170, 0, 128});
    for (const char* name : {"Face.lqi", "Needle.lqi"})
        WriteImage(scene.ImageFolder() / name, image);

    CLQWindow window;
    _LQColor navy = {16, 32, 72, 255};
    window.Create(0, 0, 200, 180);
    window.EnableBkgColor(true, &navy);
    TestGauge gauge;
    gauge.Create(kGaugeX, kGaugeY, kGaugeSize, kGaugeSize);
    gauge.SetBkgSurf(L"Face.lqi");
    gauge.SetPointerSurf(L"Needle.lqi", L"Needle.lqi", L"Needle.lqi");
    for (int i = 0; i < 3; ++i)
        gauge.SetArc(i, 135 + i, 45, 90);
    window.AddChild(&gauge);
    scene.Pump();

    constexpr unsigned kMarks = 90;
    CLQScreen::GetInstance()->ResetCounters();
    const int before = AllocationCount();
    for (unsigned mark = 0; mark < kMarks; ++mark) {
        for (int i = 0; i < 3; ++i)
            gauge.SetCurrentDialScale(i, static_cast<int>(mark));
        scene.Pump();
    }
    EXPECT_EQ(AllocationCount(), before);
    EXPECT_EQ(CLQScreen::GetInstance()->GetCounters().paints, kMarks);
}

class DialSliderRepaint : public testing::Test {
  protected:
    DialSliderRepaint() : scene(210, 280) {
        CLQSurfHandle image = Icon();
        WriteImage(scene.ImageFolder() / "Image.lqi", image);
        _LQColor navy = {16, 32, 72, 255};
        window.Create(0, 0, 210, 280);
        window.EnableBkgColor(true, &navy);
        tuner.SetBKgnd(L"Image.lqi");
        tuner.SetIcongnd(L"Image.lqi");
        tuner.SetPointgnd(L"Image.lqi");
        tuner.SetShadowGnd(L"Image.lqi");
        window.AddChild(&tuner);
    }

    /// Tunes by steps through the band; returns the number of paintings.
    int TuneThrough(const _FreqStruct_& bounds) {
        int steps = 0;
        for (float value = bounds.minimum; value <= bounds.maximum; value += bounds.scale) {
            tuner.SetVaule(value);
            scene.Pump();
            ++steps;
        }
        return steps;
    }

    void ExpectNoAllocation(const _FreqStruct_& bounds) {
        tuner.Prepare(bounds, bounds.minimum);
        for (int i = 1; i <= 6; ++i)
            tuner.AddShortcut(bounds.minimum + static_cast<float>(i) * 5 * bounds.scale);
        TuneThrough(bounds);

        CLQScreen::GetInstance()->ResetCounters();
        const int before = AllocationCount();
        const int steps = TuneThrough(bounds);
        EXPECT_EQ(AllocationCount(), before);
        EXPECT_EQ(CLQScreen::GetInstance()->GetCounters().paints, static_cast<std::uint64_t>(steps));
    }

    Scene scene;
    CLQWindow window;
    TestTuner tuner;
};

TEST_F(DialSliderRepaint, OfDecimalsAllocatesNothingOnceEachDigitWasShown) {
    ExpectNoAllocation(FmScale());
}

TEST_F(DialSliderRepaint, OfWholeNumbersAllocatesNothingOnceEachDigitWasShown) {
    ExpectNoAllocation(AmScale());
}

}  // namespace
}  // namespace korvane::test
