#include <climits>
#include <cmath>
#include <gtest/gtest.h>

#include "tests/draw/Pixels.h"

namespace korvane::test {
namespace {

CLQSurfHandle Gradient(int width, int height, _eSurfaceType type = eSurface_ARGB8888) {
    CLQSurfHandle surface = MakeSurface(width, height, type);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const auto red = static_cast<std::uint32_t>(x * 255 / std::max(width - 1, 1));
            const auto green = static_cast<std::uint32_t>(y * 255 / std::max(height - 1, 1));
            SetPixel(surface, x, y, 0xFF000000U | red << 16 | green << 8 | 0x40U);
        }
    }
    return surface;
}

double Filtered(CLQSurfHandle source, double x, double y, int shift) {
    const auto at = [&](int column, int row) {
        column = std::clamp(column, 0, source.GetWidth() - 1);
        row = std::clamp(row, 0, source.GetHeight() - 1);
        return static_cast<double>((PixelOf(source, column, row) >> shift) & 255U);
    };
    const int left = static_cast<int>(std::floor(x));
    const int top = static_cast<int>(std::floor(y));
    const double fx = x - left;
    const double fy = y - top;
    return (at(left, top) * (1 - fx) + at(left + 1, top) * fx) * (1 - fy) +
           (at(left, top + 1) * (1 - fx) + at(left + 1, top + 1) * fx) * fy;
}

void ExpectFilteredBilinearly(int fromWidth, int fromHeight, int toWidth, int toHeight) {
    CLQSurfHandle source = Gradient(fromWidth, fromHeight);
    CLQSurfHandle target = MakeSurface(toWidth, toHeight);
    target.StretchBlt(source, 0, 0, toWidth, toHeight, 0, 0, fromWidth, fromHeight, 0);
    for (int y = 0; y < toHeight; ++y) {
        for (int x = 0; x < toWidth; ++x) {
            for (const int shift : {16, 8, 0}) {
                const double expected = Filtered(source, (x + 0.5) * fromWidth / toWidth - 0.5,
                                                 (y + 0.5) * fromHeight / toHeight - 0.5, shift);
                const double actual = (PixelOf(target, x, y) >> shift) & 255U;
                ASSERT_NEAR(actual, expected, 2.5) << x << ", " << y << " shift " << shift;
            }
        }
    }
}

TEST(StretchBlt, HalvesAPictureInBothDirections) {
    ExpectFilteredBilinearly(480, 288, 240, 144);
}

TEST(StretchBlt, StretchesASquareWithoutKeepingItsAspect) {
    ExpectFilteredBilinearly(100, 100, 240, 144);
}

TEST(StretchBlt, TakesSinglePixelsAndSingleRows) {
    ExpectFilteredBilinearly(1, 1, 9, 4);
    ExpectFilteredBilinearly(30, 1, 7, 5);
    ExpectFilteredBilinearly(50, 40, 1, 1);
}

TEST(StretchBlt, DrawsWhatBitBltDrawsWhenNothingIsScaled) {
    std::mt19937 random(1);
    CLQSurfHandle source = MakeRandomSurface(40, 30, eSurface_ARGB8888, random);
    CLQSurfHandle stretched = MakeRandomSurface(50, 50, eSurface_ARGB8888, random);
    CLQSurfHandle copied = CopyOf(stretched);
    stretched.StretchBlt(source, 5, 6, 20, 15, 3, 4, 20, 15, 0);
    copied.BitBlt(source, 5, 6, 20, 15, 3, 4);
    EXPECT_EQ(BytesOf(stretched), BytesOf(copied));
}

TEST(StretchBlt, ReadsNothingOutsideItsSourceBlock) {
    CLQSurfHandle source = MakeSurface(20, 20);
    _LQColor outside{255, 0, 0, 255};
    _LQColor inside{0, 0, 255, 255};
    source.FillRect(0, 0, 20, 20, outside, false);
    source.FillRect(8, 9, 11, 12, inside, false);
    CLQSurfHandle target = MakeSurface(50, 40);
    target.StretchBlt(source, 0, 0, 50, 40, 8, 9, 3, 3, 0);
    for (int y = 0; y < 40; ++y) {
        for (int x = 0; x < 50; ++x)
            ASSERT_EQ(PixelOf(target, x, y), 0xFF0000FFU);
    }
}

TEST(StretchBlt, BlendsOverTheTarget) {
    CLQSurfHandle source = MakeSurface(4, 4);
    _LQColor half{255, 255, 255, 128};
    source.FillRect(0, 0, 4, 4, half, false);
    CLQSurfHandle target = MakeSurface(10, 10);
    _LQColor green{0, 255, 0, 255};
    target.FillRect(0, 0, 10, 10, green, false);
    target.StretchBlt(source, 2, 3, 5, 6, 0, 0, 4, 4, 0);
    EXPECT_EQ(PixelOf(target, 4, 5), Over(0x80808080U, 0xFF00FF00U));
    EXPECT_EQ(PixelOf(target, 1, 5), 0xFF00FF00U);
    EXPECT_EQ(PixelOf(target, 7, 5), 0xFF00FF00U);
    EXPECT_EQ(PixelOf(target, 4, 2), 0xFF00FF00U);
    EXPECT_EQ(PixelOf(target, 4, 9), 0xFF00FF00U);
}

TEST(StretchBlt, ScalesEveryTypeOfSourceAlike) {
    CLQSurfHandle full = Gradient(33, 21);
    for (const _eSurfaceType type : kSurfaceTypes) {
        CLQSurfHandle source = Gradient(33, 21, type);
        CLQSurfHandle same = MakeSurface(33, 21);
        same.BitBlt(source, 0, 0, 33, 21, 0, 0);
        CLQSurfHandle expected = MakeSurface(60, 12);
        expected.StretchBlt(same, 0, 0, 60, 12, 0, 0, 33, 21, 0);
        CLQSurfHandle actual = MakeSurface(60, 12);
        actual.StretchBlt(source, 0, 0, 60, 12, 0, 0, 33, 21, 0);
        EXPECT_EQ(BytesOf(actual), BytesOf(expected)) << type;
    }
}

TEST(StretchBlt, ShowsWhatWasDrawnIntoASmallSourceSinceItWasLastScaled) {
    for (const _eSurfaceType type : kSurfaceTypes) {
        CLQSurfHandle source = MakeSurface(6, 6, type);
        CLQSurfHandle target = MakeSurface(12, 12);
        _LQColor white{255, 255, 255, 255};
        _LQColor blue{0, 0, 255, 255};
        source.FillRect(0, 0, 6, 6, white, false);
        target.StretchBlt(source, 0, 0, 12, 12, 0, 0, 6, 6, 0);
        ASSERT_EQ(PixelOf(target, 6, 6), 0xFFFFFFFFU);
        source.FillRect(0, 0, 6, 6, blue, false);
        target.StretchBlt(source, 0, 0, 12, 12, 0, 0, 6, 6, 0);
        EXPECT_EQ(PixelOf(target, 6, 6), 0xFF0000FFU);
    }
}

TEST(StretchBlt, DrawsNothingForBlocksOutsideTheSourceAndImpossibleSizes) {
    std::mt19937 random(2);
    CLQSurfHandle source = MakeRandomSurface(10, 10, eSurface_ARGB8888, random);
    CLQSurfHandle target = MakeRandomSurface(20, 20, eSurface_ARGB8888, random);
    const std::vector<std::uint8_t> before = BytesOf(target);
    const auto stretch = [&](int width, int height, int x, int y, int fromWidth, int fromHeight) {
        target.StretchBlt(source, 0, 0, width, height, x, y, fromWidth, fromHeight, 0);
    };
    for (const int wrong : {0, -1, INT_MIN}) {
        stretch(wrong, 5, 0, 0, 10, 10);
        stretch(5, wrong, 0, 0, 10, 10);
        stretch(5, 5, 0, 0, wrong, 10);
        stretch(5, 5, 0, 0, 10, wrong);
    }
    for (const int wrong : {-1, 1, 10, INT_MIN, INT_MAX}) {
        stretch(5, 5, wrong, 0, 10, 10);
        stretch(5, 5, 0, wrong, 10, 10);
    }
    stretch(5, 5, 0, 0, INT_MAX, 10);
    stretch(5, 5, 0, 0, 10, INT_MAX);
    stretch(INT_MAX, 5, 0, 0, 10, 10);
    stretch(5, INT_MAX, 0, 0, 10, 10);
    stretch(16385, 5, 0, 0, 10, 10);
    for (const int away : {INT_MIN, INT_MIN + 5, -5, 20, INT_MAX - 5, INT_MAX})
        target.StretchBlt(source, away, away, 5, 5, 0, 0, 10, 10, 0);
    EXPECT_EQ(BytesOf(target), before);
}

TEST(StretchBlt, ScalesWithinOneSurfaceAsIfTheSourceHadBeenCopiedBefore) {
    std::mt19937 random(3);
    for (const _eSurfaceType type : kSurfaceTypes) {
        CLQSurfHandle surface = MakeRandomSurface(40, 30, type, random);
        CLQSurfHandle source = CopyOf(surface);
        CLQSurfHandle expected = CopyOf(surface);
        for (int round = 0; round < 3; ++round) {
            expected.StretchBlt(source, 5, 3, 35, 27, 0, 0, 20, 20, 0);
            surface.StretchBlt(surface, 5, 3, 35, 27, 0, 0, 20, 20, 0);
            ASSERT_EQ(BytesOf(surface), BytesOf(expected)) << type;
            source = CopyOf(surface);
        }
    }
}

}  // namespace
}  // namespace korvane::test
