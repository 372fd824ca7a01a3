#include <climits>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include "tests/draw/Pixels.h"

namespace korvane::test {
namespace {

constexpr int kBilinear = 2;
constexpr int kNearest = 0;
constexpr std::uint32_t kWhite = 0xFFFFFFFFU;

/// A white bar, one pixel thick, with a red tip at its right end.
CLQSurfHandle MakeNeedle(int length, _eSurfaceType type = eSurface_ARGB8888) {
    CLQSurfHandle needle = MakeSurface(length, 1, type);
    for (int x = 0; x < length; ++x)
        SetPixel(needle, x, 0, kWhite);
    SetPixel(needle, length - 1, 0, 0xFFFF0000U);
    return needle;
}

TEST(RotateBlt, PointsAlongPlusXAtZeroAndTurnsClockwise) {
    struct Direction {
        int angle;
        int dx;
        int dy;
    };
    CLQSurfHandle needle = MakeNeedle(12);
    for (const int mode : {kBilinear, kNearest}) {
        for (const Direction direction :
             {Direction{0, 1, 0}, Direction{90, 0, 1}, Direction{180, -1, 0}, Direction{270, 0, -1},
              Direction{360, 1, 0}, Direction{-90, 0, -1}, Direction{450, 0, 1}}) {
            CLQSurfHandle face = MakeSurface(41, 41);
            face.RotateBlt(needle, 20, 20, 1.0F, 1.0F, 0, 0, direction.angle, mode);
            for (int i = 0; i < 11; ++i)
                EXPECT_EQ(PixelOf(face, 20 + i * direction.dx, 20 + i * direction.dy), kWhite)
                    << direction.angle;
            EXPECT_EQ(PixelOf(face, 20 + 11 * direction.dx, 20 + 11 * direction.dy), 0xFFFF0000U);
            int painted = 0;
            for (int y = 0; y < 41; ++y) {
                for (int x = 0; x < 41; ++x)
                    painted += PixelOf(face, x, y) != 0;
            }
            EXPECT_EQ(painted, 12) << direction.angle;
        }
    }
}

TEST(RotateBlt, PointsItsTipAlongTheAngle) {
    constexpr int kLength = 60;
    CLQSurfHandle needle = MakeNeedle(kLength);
    for (int angle = 0; angle < 360; angle += 7) {
        CLQSurfHandle face = MakeSurface(141, 141);
        face.RotateBlt(needle, 70, 70, 1.0F, 1.0F, 0, 0, angle, kBilinear);
        const double radians = angle * 3.14159265358979 / 180;
        const int tipX = static_cast<int>(std::lround(70 + (kLength - 3) * std::cos(radians)));
        const int tipY = static_cast<int>(std::lround(70 + (kLength - 3) * std::sin(radians)));
        EXPECT_GT(PixelOf(face, tipX, tipY) >> 24, 64U) << angle;
        EXPECT_EQ(PixelOf(face, 140 - tipX, 140 - tipY), 0U) << angle;
    }
}

TEST(RotateBlt, IsACopyAtZeroDegrees) {
    std::mt19937 random(1);
    for (const _eSurfaceType type : kSurfaceTypes) {
        for (const int mode : {kBilinear, kNearest}) {
            CLQSurfHandle source = MakeRandomSurface(23, 14, type, random);
            CLQSurfHandle rotated = MakeRandomSurface(40, 30, eSurface_ARGB8888, random);
            CLQSurfHandle copied = CopyOf(rotated);
            rotated.RotateBlt(source, 15, 12, 1.0F, 1.0F, 9, 4, 0, mode);
            copied.BitBlt(source, 15 - 9, 12 - 4, 23, 14, 0, 0);
            EXPECT_EQ(BytesOf(rotated), BytesOf(copied)) << type;
        }
    }
}

TEST(RotateBlt, KeepsThePivotInItsPlaceAtEveryAngleAndScale) {
    CLQSurfHandle source = MakeSurface(31, 31);
    _LQColor dim{0, 0, 60, 60};
    source.FillRect(0, 0, 31, 31, dim, false);
    SetPixel(source, 20, 8, kWhite);
    for (const float scale : {1.0F, 2.0F, 3.5F}) {
        for (int angle = 0; angle < 360; angle += 15) {
            CLQSurfHandle target = MakeSurface(100, 100);
            target.RotateBlt(source, 47, 53, scale, scale, 20, 8, angle, kBilinear);
            EXPECT_EQ(PixelOf(target, 47, 53), kWhite) << angle << " at " << scale;
        }
    }
}

TEST(RotateBlt, TakesAPivotOutsideTheSource) {
    CLQSurfHandle source = MakeNeedle(5);
    CLQSurfHandle target = MakeSurface(60, 60);
    target.RotateBlt(source, 30, 30, 1.0F, 1.0F, -10, 0, 90, kBilinear);
    EXPECT_EQ(PixelOf(target, 30, 40), kWhite);
    EXPECT_EQ(PixelOf(target, 30, 44), 0xFFFF0000U);
    EXPECT_EQ(PixelOf(target, 30, 39), 0U);
}

TEST(RotateBlt, ScalesEachDirectionOfTheSourceByItsFactor) {
    CLQSurfHandle source = MakeSurface(9, 9);
    _LQColor white{255, 255, 255, 255};
    source.FillRect(0, 0, 9, 9, white, false);
    CLQSurfHandle target = MakeSurface(101, 101);
    target.RotateBlt(source, 50, 50, 5.0F, 1.0F, 4, 4, 90, kNearest);
    EXPECT_EQ(PixelOf(target, 50, 50 + 20), kWhite);
    EXPECT_EQ(PixelOf(target, 50, 50 - 20), kWhite);
    EXPECT_EQ(PixelOf(target, 50, 50 + 25), 0U);
    EXPECT_EQ(PixelOf(target, 50 + 4, 50), kWhite);
    EXPECT_EQ(PixelOf(target, 50 + 6, 50), 0U);
}

TEST(RotateBlt, DrawsNothingForFactorsThatAreNoFactors) {
    std::mt19937 random(2);
    CLQSurfHandle source = MakeRandomSurface(10, 10, eSurface_ARGB8888, random);
    CLQSurfHandle target = MakeRandomSurface(30, 30, eSurface_ARGB8888, random);
    const std::vector<std::uint8_t> before = BytesOf(target);
    using Limits = std::numeric_limits<float>;
    for (const float wrong : {0.0F, -0.0F, -1.0F, Limits::quiet_NaN(), Limits::infinity(),
                              -Limits::infinity(), Limits::denorm_min(), Limits::max(), Limits::lowest()}) {
        for (const int mode : {kBilinear, kNearest}) {
            target.RotateBlt(source, 15, 15, wrong, 1.0F, 5, 5, 30, mode);
            target.RotateBlt(source, 15, 15, 1.0F, wrong, 5, 5, 30, mode);
        }
    }
    EXPECT_EQ(BytesOf(target), before);
}

// A loop that ran with the numbers would outlast the test's time limit.
TEST(RotateBlt, EndsSoonWhateverTheNumbersSay) {
    constexpr int kNumbers[] = {INT_MIN, INT_MIN + 1, -100000, -1, 0, 7, 65536, INT_MAX - 1, INT_MAX};
    std::mt19937 random(3);
    CLQSurfHandle source = MakeRandomSurface(10, 10, eSurface_ARGB8888, random);
    for (const _eSurfaceType type : kSurfaceTypes) {
        CLQSurfHandle target = MakeSurface(30, 30, type);
        for (int round = 0; round < 5000; ++round) {
            const auto any = [&] { return kNumbers[random() % std::size(kNumbers)]; };
            const float factors[] = {1.0F / 1024, 0.01F, 1.0F, 1.7F, 1000.0F, 1024.0F};
            const float scaleX = factors[random() % std::size(factors)];
            const float scaleY = factors[random() % std::size(factors)];
            const int x = any();
            const int y = any();
            const int pivotX = any();
            const int pivotY = any();
            const int angle = any();
            target.GetSurface()->SetOrigin(any(), any());
            target.RotateBlt(source, x, y, scaleX, scaleY, pivotX, pivotY, angle, round % 2 * kBilinear);
        }
    }
}

TEST(RotateBlt, TurnsWithinOneSurfaceAsIfTheSourceHadBeenCopiedBefore) {
    std::mt19937 random(4);
    for (const _eSurfaceType type : kSurfaceTypes) {
        CLQSurfHandle surface = MakeRandomSurface(40, 30, type, random);
        for (int round = 0; round < 3; ++round) {
            CLQSurfHandle source = CopyOf(surface);
            CLQSurfHandle expected = CopyOf(surface);
            expected.RotateBlt(source, 18, 17, 1.2F, 0.8F, 20, 15, 33, kBilinear);
            surface.RotateBlt(surface, 18, 17, 1.2F, 0.8F, 20, 15, 33, kBilinear);
            ASSERT_EQ(BytesOf(surface), BytesOf(expected)) << type;
        }
    }
}

TEST(RotateBlt, TakesEmptyHandlesWithoutEffect) {
    std::mt19937 random(5);
    CLQSurfHandle empty;
    CLQSurfHandle blank(std::make_shared<CLQSurface>());
    CLQSurfHandle surface = MakeRandomSurface(8, 8, eSurface_ARGB8888, random);
    const std::vector<std::uint8_t> before = BytesOf(surface);
    for (CLQSurfHandle* other : {&empty, &blank}) {
        surface.RotateBlt(*other, 4, 4, 1.0F, 1.0F, 0, 0, 45, kBilinear);
        surface.StretchBlt(*other, 0, 0, 8, 8, 0, 0, 1, 1, 0);
        other->RotateBlt(surface, 4, 4, 1.0F, 1.0F, 0, 0, 45, kBilinear);
        other->StretchBlt(surface, 0, 0, 4, 4, 0, 0, 8, 8, 0);
    }
    EXPECT_EQ(BytesOf(surface), before);
}

}  // namespace
}  // namespace korvane::test
