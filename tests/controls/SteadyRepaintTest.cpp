#include <gtest/gtest.h>

#include "engine/draw/SurfManager.h"

#include "tests/controls/TestWheel.h"
#include "tests/support/AllocationCount.h"
#include "tests/support/Scene.h"

namespace {

using korvane::test::AmBounds;
using korvane::test::FmBounds;
using korvane::test::Scene;
using korvane::test::TestWheel;

TEST(NumSliderRepaint, AllocatesNothingInSteadyState) {
    const Scene scene;
    for (const _FreqStruct_& bounds : {FmBounds(), AmBounds()}) {
        TestWheel wheel;
        wheel.Prepare(bounds, bounds.minimum);
        wheel.SlideMove(false);
        wheel.StartMove();
        CLQSurfHandle canvas =
            CLQSurfManager::GetInstance()->CreateSurface(400, 270, eSurface_ARGB8888, true);
        const auto rollOnce = [&wheel, &canvas] {
            for (int tick = 0; tick < korvane::test::kTicksPerStep; ++tick) {
                wheel.OnTime(nullptr, 0);
                wheel.Draw(canvas);
            }
            wheel.SetVaule(100.0f);
        };
        rollOnce();
        rollOnce();
        const int before = korvane::test::AllocationCount();
        rollOnce();
        EXPECT_EQ(korvane::test::AllocationCount(), before);
    }
}

}  // namespace
