#include <climits>
#include <gtest/gtest.h>
#include <tuple>

#include "tests/draw/Pixels.h"

namespace korvane::test {
namespace {

struct Block {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    int sourceX = 0;
    int sourceY = 0;
};

void Draw(CLQSurfHandle& target, CLQSurfHandle& source, const Block& block) {
    target.BitBlt(source, block.x, block.y, block.width, block.height, block.sourceX, block.sourceY);
}

/// What a pixel of the target must be after the block has been drawn over `before`.
std::uint32_t Expected(CLQSurfHandle before, CLQSurfHandle source, const Block& block, int x, int y) {
    const std::uint32_t old = PixelOf(before, x, y);
    const std::int64_t column = std::int64_t{x} - block.x;
    const std::int64_t row = std::int64_t{y} - block.y;
    if (column < 0 || column >= block.width || row < 0 || row >= block.height)
        return old;
    const std::int64_t fromX = block.sourceX + column;
    const std::int64_t fromY = block.sourceY + row;
    if (fromX < 0 || fromX >= source.GetWidth() || fromY < 0 || fromY >= source.GetHeight())
        return old;
    const std::uint32_t over = Over(PixelOf(source, static_cast<int>(fromX), static_cast<int>(fromY)), old);
    return AsStored(over, before.GetSurfType());
}

::testing::AssertionResult Matches(CLQSurfHandle actual, CLQSurfHandle before, CLQSurfHandle source,
                                   const Block& block) {
    for (int y = 0; y < actual.GetHeight(); ++y) {
        for (int x = 0; x < actual.GetWidth(); ++x) {
            const std::uint32_t expected = Expected(before, source, block, x, y);
            if (PixelOf(actual, x, y) != expected) {
                return ::testing::AssertionFailure()
                       << "pixel " << x << ", " << y << " is " << std::hex << PixelOf(actual, x, y)
                       << ", not " << expected << std::dec << "; block " << block.x << " " << block.y << " "
                       << block.width << " " << block.height << " from " << block.sourceX << " "
                       << block.sourceY;
            }
        }
    }
    return ::testing::AssertionSuccess();
}

int AnyCoordinate(std::mt19937& random, int size) {
    constexpr int kExtremes[] = {INT_MIN, INT_MIN + 1, INT_MIN / 2, -1,     0,
                                 1,       INT_MAX / 2, INT_MAX - 1, INT_MAX};
    if (random() % 3 == 0)
        return kExtremes[random() % std::size(kExtremes)];
    return RandomInt(random, -size, size);
}

class EveryPairOfTypes : public ::testing::TestWithParam<std::tuple<_eSurfaceType, _eSurfaceType>> {};

TEST_P(EveryPairOfTypes, BlendsTheBlockWhereBothSurfacesHaveIt) {
    const auto [targetType, sourceType] = GetParam();
    std::mt19937 random(1);
    CLQSurfHandle source = MakeRandomSurface(23, 17, sourceType, random);
    for (int round = 0; round < 200; ++round) {
        CLQSurfHandle before = MakeRandomSurface(31, 19, targetType, random);
        CLQSurfHandle target = CopyOf(before);
        const Block block{RandomInt(random, -40, 40), RandomInt(random, -30, 30), RandomInt(random, -2, 50),
                          RandomInt(random, -2, 50),  RandomInt(random, -20, 30), RandomInt(random, -20, 30)};
        Draw(target, source, block);
        ASSERT_TRUE(Matches(target, before, source, block));
    }
}

TEST_P(EveryPairOfTypes, StaysWithinBoundsForExtremeNumbers) {
    const auto [targetType, sourceType] = GetParam();
    std::mt19937 random(2);
    CLQSurfHandle source = MakeRandomSurface(7, 5, sourceType, random);
    for (int round = 0; round < 2000; ++round) {
        CLQSurfHandle before = MakeRandomSurface(9, 6, targetType, random);
        CLQSurfHandle target = CopyOf(before);
        const Block block{AnyCoordinate(random, 12), AnyCoordinate(random, 12), AnyCoordinate(random, 12),
                          AnyCoordinate(random, 12), AnyCoordinate(random, 12), AnyCoordinate(random, 12)};
        Draw(target, source, block);
        ASSERT_TRUE(Matches(target, before, source, block));
    }
}

TEST_P(EveryPairOfTypes, BlendsRowsLongerThanOneTile) {
    const auto [targetType, sourceType] = GetParam();
    std::mt19937 random(3);
    CLQSurfHandle source = MakeRandomSurface(1500, 2, sourceType, random);
    CLQSurfHandle before = MakeRandomSurface(1400, 3, targetType, random);
    CLQSurfHandle target = CopyOf(before);
    const Block block{3, 1, 1390, 2, 7, 0};
    Draw(target, source, block);
    EXPECT_TRUE(Matches(target, before, source, block));
}

INSTANTIATE_TEST_SUITE_P(BitBlt, EveryPairOfTypes,
                         ::testing::Combine(::testing::ValuesIn(kSurfaceTypes),
                                            ::testing::ValuesIn(kSurfaceTypes)));

class EveryTypeWithinOneSurface : public ::testing::TestWithParam<_eSurfaceType> {};

TEST_P(EveryTypeWithinOneSurface, CopiesAsIfTheSourceHadBeenCopiedBefore) {
    std::mt19937 random(4);
    for (int round = 0; round < 300; ++round) {
        const int width = round % 20 == 0 ? 1300 : 37;
        CLQSurfHandle before = MakeRandomSurface(width, 11, GetParam(), random);
        CLQSurfHandle surface = CopyOf(before);
        CLQSurfHandle other = surface;
        const Block block{RandomInt(random, -8, 20),       RandomInt(random, -4, 8),
                          RandomInt(random, 1, width + 5), RandomInt(random, 1, 14),
                          RandomInt(random, -8, 20),       RandomInt(random, -4, 8)};
        Draw(surface, other, block);
        ASSERT_TRUE(Matches(surface, before, before, block));
    }
}

INSTANTIATE_TEST_SUITE_P(BitBlt, EveryTypeWithinOneSurface, ::testing::ValuesIn(kSurfaceTypes));

TEST(BitBlt, BoundsACopyWhoseSizesAreEdges) {
    std::mt19937 random(5);
    CLQSurfHandle saved = MakeRandomSurface(20, 10, eSurface_ARGB8888, random);
    CLQSurfHandle before = MakeRandomSurface(60, 40, eSurface_ARGB8888, random);
    CLQSurfHandle screen = CopyOf(before);
    screen.BitBlt(saved, 30, 25, 30 + 20, 25 + 10, 0, 0);
    EXPECT_TRUE(Matches(screen, before, saved, Block{30, 25, 20, 10, 0, 0}));
}

TEST(BitBlt, DoesNotApplyTheOriginOfTheSource) {
    std::mt19937 random(6);
    CLQSurfHandle source = MakeRandomSurface(20, 10, eSurface_ARGB8888, random);
    source.GetSurface()->SetOrigin(7, 3);
    CLQSurfHandle before = MakeRandomSurface(30, 30, eSurface_ARGB8888, random);
    CLQSurfHandle target = CopyOf(before);
    const Block block{4, 5, 12, 8, 2, 1};
    Draw(target, source, block);
    EXPECT_TRUE(Matches(target, before, source, block));
}

TEST(BitBlt, TakesEmptyHandlesWithoutEffect) {
    std::mt19937 random(7);
    CLQSurfHandle empty;
    CLQSurfHandle surface = MakeRandomSurface(8, 8, eSurface_ARGB8888, random);
    const std::vector<std::uint8_t> before = BytesOf(surface);
    surface.BitBlt(empty, 0, 0, 8, 8, 0, 0);
    empty.BitBlt(surface, 0, 0, 8, 8, 0, 0);
    CLQSurfHandle blank(std::make_shared<CLQSurface>());
    surface.BitBlt(blank, 0, 0, 8, 8, 0, 0);
    blank.BitBlt(surface, 0, 0, 8, 8, 0, 0);
    EXPECT_EQ(BytesOf(surface), before);
}

}  // namespace
}  // namespace korvane::test
