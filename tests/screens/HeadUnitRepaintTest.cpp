#include <gtest/gtest.h>

#include "tests/demo/DemoScene.h"
#include "tests/screens/HeadUnitScreens.h"
#include "tests/support/AllocationCount.h"

namespace korvane::test {
namespace {

TEST(HeadUnitRepaint, OfEachScreenAllocatesNothing) {
    constexpr int kFrames = 10;
    DemoScene scene;
    HeadUnitScreens headUnit;
    ASSERT_GT(headUnit.All().size(), 4u);
    const auto paint = [&scene] {
        for (int i = 0; i < kFrames; ++i) {
            CLQScreen::GetInstance()->InvalidateAll();
            scene.Pump();
        }
    };
    for (const HeadUnitScreens::Screen& screen : headUnit.All()) {
        SCOPED_TRACE(screen.name);
        headUnit.ShowAlone(screen);
        paint();
        CLQScreen::GetInstance()->ResetCounters();
        const int before = AllocationCount();
        paint();
        EXPECT_EQ(AllocationCount(), before);
        EXPECT_EQ(CLQScreen::GetInstance()->GetCounters().paintedPixels, kFrames * 800u * 480u);
    }
}

TEST(HeadUnitRepaint, OfEachScreenShowsThatScreen) {
    DemoScene scene;
    HeadUnitScreens headUnit;
    std::vector<std::vector<std::uint32_t>> pictures;
    for (const HeadUnitScreens::Screen& screen : headUnit.All()) {
        headUnit.ShowAlone(screen);
        scene.Pump();
        pictures.push_back(scene.Pixels());
        scene.FillWithGarbage();
        CLQScreen::GetInstance()->InvalidateAll();
        scene.Pump();
        EXPECT_TRUE(scene.Pixels() == pictures.back()) << screen.name << ": nothing is left unpainted";
        for (std::size_t i = 0; i + 1 < pictures.size(); ++i)
            EXPECT_TRUE(pictures.back() != pictures[i]) << screen.name;
    }
}

}  // namespace
}  // namespace korvane::test
