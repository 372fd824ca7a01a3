#include <gtest/gtest.h>

#include "controls/parts/NumSliderLayout.h"
#include "engine/Korvane.h"

#include "tests/controls/TestWheel.h"
#include "tests/support/AllocationCount.h"
#include "tests/support/Scene.h"

namespace korvane::test {
namespace {

class NumSliderRepaint : public testing::Test {
  protected:
    NumSliderRepaint() : scene(400, 270) {
        CLQSurfHandle image = CLQSurfManager::GetInstance()->CreateSurface(20, 20, eSurface_ARGB8888, true);
        _LQColor glass = {255, 170, 0, 128};
        image.FillRect(0, 0, 20, 20, glass, false);
        for (const char* name : {"NumberShadowUp.lqi", "NumberShadowDown.lqi", "Seek.lqi"})
            WriteImage(scene.ImageFolder() / name, image);
        wheel.SetSeekUpGnd(L"Seek.lqi");
        wheel.SetSeekDownGnd(L"Seek.lqi");

        _LQColor navy = {16, 32, 72, 255};
        window.Create(0, 0, 400, 270);
        window.EnableBkgColor(true, &navy);
        window.AddChild(&wheel);
    }

    /// Rolls through the band once, and then counts while it rolls on.
    void ExpectNoAllocation(const _FreqStruct_& bounds) {
        wheel.Prepare(bounds, bounds.minimum);
        wheel.SlideMove(false);
        wheel.StartMove();
        const auto steps = static_cast<int>((bounds.maximum - bounds.minimum) / bounds.scale) + 1;
        Tick(steps * kTicksPerStep);
        ASSERT_LT(wheel.Value(), bounds.minimum + 2 * bounds.scale) << "once through the band";

        constexpr int kTicks = 400;
        CLQScreen::GetInstance()->ResetCounters();
        const int before = AllocationCount();
        Tick(kTicks);
        EXPECT_EQ(AllocationCount(), before);
        EXPECT_EQ(CLQScreen::GetInstance()->GetCounters().paints, kTicks);
        EXPECT_EQ(CLQScreen::GetInstance()->GetCounters().flips, kTicks);
    }

    void Tick(int times) {
        for (int tick = 0; tick < times; ++tick)
            scene.Advance(num_slider::kTickPeriodMs);
    }

    Scene scene;
    CLQWindow window;
    TestWheel wheel;
};

TEST_F(NumSliderRepaint, OfDecimalsAllocatesNothingOnceEachDigitWasShown) {
    ExpectNoAllocation(FmBounds());
}

TEST_F(NumSliderRepaint, OfWholeNumbersAllocatesNothingOnceEachDigitWasShown) {
    ExpectNoAllocation(AmBounds());
}

}  // namespace
}  // namespace korvane::test
