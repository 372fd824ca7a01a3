#include <gtest/gtest.h>

#include "engine/window/Screen.h"
#include "engine/window/Window.h"

#include "tests/controls/dials/TestGauge.h"
#include "tests/support/AllocationCount.h"

namespace korvane::test {
namespace {

TEST(DialScaleRepaint, AllocatesNothingOnceItsImagesAreLoaded) {
    Scene scene(200, 180);
    CLQSurfHandle image = NewSurface(60, 9);
    _LQColor glass = {255, 170, 0, 128};
    image.FillRect(0, 0, 60, 9, glass, false);
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

}  // namespace
}  // namespace korvane::test
