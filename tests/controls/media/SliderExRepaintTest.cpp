#include <gtest/gtest.h>

#include "engine/window/Screen.h"
#include "engine/window/Window.h"

#include "tests/controls/media/TestProgress.h"
#include "tests/support/AllocationCount.h"

namespace korvane::test {
namespace {

TEST(SliderExRepaint, AllocatesNothingWhileItPlaysAPassage) {
    Scene scene(380, 130);
    WriteProgressImages(scene.ImageFolder());
    CLQWindow window;
    _LQColor navy = {16, 24, 40, 255};
    window.Create(0, 0, 380, 130);
    window.EnableBkgColor(true, &navy);
    TestProgress slider;
    slider.Prepare();
    slider.EnableReapetAIcon(60);
    slider.EnableReapetBIcon(120);
    window.AddChild(&slider);
    scene.Pump();

    CLQScreen::GetInstance()->ResetCounters();
    const int before = AllocationCount();
    for (int second = 60; second < 120; ++second) {
        slider.SetValue(second);
        scene.Pump();
    }
    EXPECT_EQ(AllocationCount(), before);
    EXPECT_EQ(CLQScreen::GetInstance()->GetCounters().paints, 60u);
}

}  // namespace
}  // namespace korvane::test
