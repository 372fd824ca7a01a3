#include <algorithm>
#include <cstdint>
#include <gtest/gtest.h>
#include <ostream>
#include <string>

#include "tests/demo/DemoScene.h"
#include "tests/screens/ControlScreen.h"
#include "tests/support/AllocationCount.h"

namespace korvane::test {

static void PrintTo(const ControlScreenKind& kind, std::ostream* out) {
    *out << kind.name;
}

namespace {

class SmallestChange : public testing::TestWithParam<ControlScreenKind> {
  protected:
    SmallestChange() : screen(GetParam().make()) {
        screen->BringToTop();
        // Both looks, so that all images and letters are there.
        for (int i = 0; i < 2; ++i) {
            scene.Pump();
            screen->Change();
        }
        CLQScreen::GetInstance()->InvalidateAll();
        scene.Pump();
        CLQScreen::GetInstance()->ResetCounters();
    }

    std::uint64_t PaintedPixels() { return CLQScreen::GetInstance()->GetCounters().paintedPixels; }

    DemoScene scene;
    std::unique_ptr<ControlScreen> screen;
};

TEST_P(SmallestChange, PaintsNoPixelOutsideWhatChanges) {
    const _LQRect changed = screen->ChangedRect();
    scene.FillWithGarbage();
    const auto before = scene.Pixels();
    screen->Change();
    scene.Pump();
    const auto after = scene.Pixels();
    for (int y = 0; y < 480; ++y) {
        for (int x = 0; x < 800; ++x) {
            const bool inside =
                x >= changed.left && x < changed.right && y >= changed.top && y < changed.bottom;
            const auto at = static_cast<std::size_t>(y * 800 + x);
            if (!inside) {
                ASSERT_EQ(after[at], before[at]) << x << ", " << y;
            }
        }
    }
    const auto area = static_cast<std::uint64_t>(changed.right - changed.left) *
                      static_cast<std::uint64_t>(changed.bottom - changed.top);
    EXPECT_GT(area, 0u);
    EXPECT_EQ(PaintedPixels(), area) << "each once";
}

TEST_P(SmallestChange, ShowsWhatAFullRepaintShows) {
    const auto before = scene.Pixels();
    screen->Change();
    scene.Pump();
    const auto partial = scene.Pixels();
    EXPECT_TRUE(partial != before) << "the change is seen";
    scene.FillWithGarbage();
    CLQScreen::GetInstance()->InvalidateAll();
    scene.Pump();
    EXPECT_TRUE(scene.Pixels() == partial);
}

TEST_P(SmallestChange, IsPaintedWithoutAllocation) {
    constexpr std::uint64_t kChanges = 20;
    int allocations = 0;
    for (std::uint64_t i = 0; i < kChanges; ++i) {
        screen->Change();
        // What setting a new text takes does not count.
        const int before = AllocationCount();
        scene.Pump();
        allocations += AllocationCount() - before;
    }
    EXPECT_EQ(allocations, 0);
    EXPECT_EQ(CLQScreen::GetInstance()->GetCounters().paints, kChanges);
}

TEST_P(SmallestChange, LeavesTheFullRepaintWithoutAllocation) {
    constexpr std::uint64_t kFrames = 20;
    const int allocations = AllocationCount();
    for (std::uint64_t i = 0; i < kFrames; ++i) {
        CLQScreen::GetInstance()->InvalidateAll();
        scene.Pump();
    }
    EXPECT_EQ(AllocationCount(), allocations);
    EXPECT_EQ(PaintedPixels(), kFrames * 800 * 480);
}

INSTANTIATE_TEST_SUITE_P(Of, SmallestChange, testing::ValuesIn(ControlScreenKinds()), [](const auto& kind) {
    std::string name = kind.param.name;
    std::replace(name.begin(), name.end(), ' ', '_');
    return name;
});

}  // namespace
}  // namespace korvane::test
