#include <gtest/gtest.h>

#include "engine/window/parts/UpdateRegion.h"

namespace {

_LQRect Rect(int left, int top, int right, int bottom) {
    _LQRect rect;
    rect.left = left;
    rect.right = right;
    rect.top = top;
    rect.bottom = bottom;
    return rect;
}

bool Contains(const korvane::UpdateRegion& region, const _LQRect& rect) {
    for (std::size_t i = 0; i < region.Count(); ++i) {
        if (korvane::Covers(region[i], rect))
            return true;
    }
    return false;
}

TEST(UpdateRegion, KeepsRectanglesThatAreFarApart) {
    korvane::UpdateRegion region;
    region.Add(Rect(0, 0, 10, 10));
    region.Add(Rect(100, 100, 110, 110));
    EXPECT_EQ(region.Count(), 2U);
}

TEST(UpdateRegion, MergesNeighboursThatMakeOneRectangle) {
    korvane::UpdateRegion region;
    region.Add(Rect(0, 0, 10, 10));
    region.Add(Rect(10, 0, 20, 10));
    ASSERT_EQ(region.Count(), 1U);
    EXPECT_EQ(region[0].right, 20);
}

TEST(UpdateRegion, IgnoresWhatItHoldsAlreadyAndWhatIsEmpty) {
    korvane::UpdateRegion region;
    region.Add(Rect(0, 0, 10, 10));
    region.Add(Rect(2, 2, 8, 8));
    region.Add(Rect(50, 50, 50, 90));
    region.Add(Rect(50, 50, 40, 40));
    EXPECT_EQ(region.Count(), 1U);
}

TEST(UpdateRegion, LosesNothingWhenItRunsOutOfPlaces) {
    korvane::UpdateRegion region;
    for (int i = 0; i < 200; ++i)
        region.Add(Rect((i * 37) % 700, (i * 91) % 400, (i * 37) % 700 + 5, (i * 91) % 400 + 5));
    EXPECT_LE(region.Count(), 16U);
    for (int i = 0; i < 200; ++i)
        EXPECT_TRUE(
            Contains(region, Rect((i * 37) % 700, (i * 91) % 400, (i * 37) % 700 + 5, (i * 91) % 400 + 5)));
}

}  // namespace
