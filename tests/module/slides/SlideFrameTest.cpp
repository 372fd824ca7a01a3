#include <cstdint>
#include <gtest/gtest.h>

#include "module/SlideFrame.h"

namespace korvane::test {
namespace {

TEST(SlideFrame, WaitsForWhatIsLeftOf80Milliseconds) {
    EXPECT_EQ(slide::WaitAfter(0), 80u);
    EXPECT_EQ(slide::WaitAfter(1), 79u);
    EXPECT_EQ(slide::WaitAfter(79), 1u);
}

TEST(SlideFrame, WaitsNoLongerOnceItHasTaken80Milliseconds) {
    EXPECT_EQ(slide::WaitAfter(80), 0u);
    EXPECT_EQ(slide::WaitAfter(81), 0u);
    EXPECT_EQ(slide::WaitAfter(100000), 0u);
    EXPECT_EQ(slide::WaitAfter(INT32_MAX), 0u);
}

TEST(SlideFrame, WaitsLongerAfterTheClockWasSetBack) {
    EXPECT_EQ(slide::WaitAfter(static_cast<std::uint32_t>(-1)), 81u);
    EXPECT_EQ(slide::WaitAfter(static_cast<std::uint32_t>(-1000)), 1080u);
}

TEST(SlideFrame, CoversNoColumnOfAControlThatHasNone) {
    for (int frame = 1; frame <= 5; ++frame)
        EXPECT_EQ(slide::WayAfter(frame, 5, 0, slide::Rounding::Nearest), 0);
}

TEST(SlideFrame, NeverGoesBackNorBeyondTheControl) {
    constexpr int kWidest = 32767;
    for (const slide::Rounding rounding : {slide::Rounding::Nearest, slide::Rounding::TowardZero}) {
        int before = 0;
        for (int frame = 1; frame <= 1000; ++frame) {
            const int way = slide::WayAfter(frame, 1000, kWidest, rounding);
            ASSERT_GE(way, before) << frame;
            ASSERT_LE(way, kWidest) << frame;
            before = way;
        }
        EXPECT_EQ(before, kWidest);
    }
}

TEST(SlideFrame, CountsMoreFramesThanAFloatCanTellApart) {
    const int before = slide::WayAfter(INT32_MAX - 1, INT32_MAX, 100, slide::Rounding::TowardZero);
    EXPECT_GE(before, 99);
    EXPECT_LE(before, 100);
    EXPECT_EQ(slide::WayAfter(INT32_MAX, INT32_MAX, 100, slide::Rounding::TowardZero), 100);
}

}  // namespace
}  // namespace korvane::test
