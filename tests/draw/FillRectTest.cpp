#include <climits>
#include <gtest/gtest.h>

#include "tests/draw/Pixels.h"

namespace korvane::test {
namespace {

constexpr std::uint32_t kHalfRed = 0x80800000U;

_LQColor HalfRed() {
    return {255, 0, 0, 128};
}

class EveryType : public ::testing::TestWithParam<_eSurfaceType> {};

TEST_P(EveryType, FillsUpToButNotIncludingTheRightAndBottomEdges) {
    std::mt19937 random(1);
    CLQSurfHandle before = MakeRandomSurface(12, 9, GetParam(), random);
    CLQSurfHandle surface = CopyOf(before);
    _LQColor color{16, 132, 255, 255};
    surface.FillRect(3, 2, 7, 8, color, false);
    for (int y = 0; y < 9; ++y) {
        for (int x = 0; x < 12; ++x) {
            const bool inside = x >= 3 && x < 7 && y >= 2 && y < 8;
            EXPECT_EQ(PixelOf(surface, x, y),
                      inside ? AsStored(0xFF1084FFU, GetParam()) : PixelOf(before, x, y));
        }
    }
}

TEST_P(EveryType, StoresTheColourWithItsAlphaUnlessItIsToBlend) {
    std::mt19937 random(2);
    CLQSurfHandle before = MakeRandomSurface(900, 2, GetParam(), random);
    CLQSurfHandle stored = CopyOf(before);
    CLQSurfHandle blended = CopyOf(before);
    _LQColor color = HalfRed();
    stored.FillRect(0, 0, 900, 2, color, false);
    blended.FillRect(0, 0, 900, 2, color, true);
    for (int x = 0; x < 900; ++x) {
        ASSERT_EQ(PixelOf(stored, x, 1), AsStored(kHalfRed, GetParam()));
        ASSERT_EQ(PixelOf(blended, x, 1), AsStored(Over(kHalfRed, PixelOf(before, x, 1)), GetParam()));
    }
}

TEST_P(EveryType, TakesAnyEdges) {
    constexpr int kEdges[] = {INT_MIN, INT_MIN + 1, -1, 0, 3, 8, 9, INT_MAX - 1, INT_MAX};
    std::mt19937 random(3);
    CLQSurfHandle before = MakeRandomSurface(8, 8, GetParam(), random);
    _LQColor color{0, 0, 255, 255};
    for (const int left : kEdges) {
        for (const int right : kEdges) {
            CLQSurfHandle surface = CopyOf(before);
            surface.FillRect(left, right, right, left, color, false);
            EXPECT_EQ(BytesOf(surface), BytesOf(before)) << "a turned rectangle is empty";
            surface.FillRect(left, INT_MIN, right, INT_MAX, color, false);
            for (int x = 0; x < 8; ++x) {
                const bool inside = x >= left && x < right;
                ASSERT_EQ(PixelOf(surface, x, 5),
                          inside ? AsStored(0xFF0000FFU, GetParam()) : PixelOf(before, x, 5));
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(FillRect, EveryType, ::testing::ValuesIn(kSurfaceTypes));

TEST(FillRect, TakesAnEmptyHandleWithoutEffect) {
    CLQSurfHandle empty;
    _LQColor color;
    empty.FillRect(0, 0, 5, 5, color, false);
    EXPECT_EQ(empty.GetSurface(), nullptr);
}

}  // namespace
}  // namespace korvane::test
