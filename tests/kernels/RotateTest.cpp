#include <climits>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>

#include "engine/draw/kernels/Kernels.h"
#include "engine/draw/kernels/SineTable.h"

#include "tests/kernels/EveryTarget.h"
#include "tests/kernels/Picture.h"
#include "tests/kernels/Reference.h"

namespace kernels = korvane::kernels;
using kernels::Filter;

namespace {

class Rotating : public EveryTarget {};

kernels::Rotation Whole(const Picture& source) {
    kernels::Rotation rotation;
    rotation.source = source.At(0, 0);
    rotation.sourceStride = source.width;
    rotation.sourceWidth = source.width;
    rotation.sourceHeight = source.height;
    return rotation;
}

Picture Drawn(const Picture& under, const kernels::Rotation& rotation, const kernels::Box& clip) {
    Picture target = under;
    kernels::RotateOver(target.At(0, 0), target.width, clip, rotation);
    return target;
}

Picture Expected(const Picture& under, const kernels::Rotation& rotation, const kernels::Box& clip) {
    Picture target = under;
    const reference::Turned turned(rotation);
    for (int y = clip.y; y < clip.y + clip.height; ++y) {
        for (int x = clip.x; x < clip.x + clip.width; ++x) {
            *target.At(x, y) = reference::Over(turned.At(x, y), *target.At(x, y));
        }
    }
    return target;
}

void RunRandomRotations(std::uint32_t seed, Filter filter) {
    Dice dice(seed);
    for (int round = 0; round < 6000; ++round) {
        Picture source(dice.Between(1, 30), dice.Between(1, 20));
        dice.Paint(source, 30);
        Picture under(dice.Between(1, 40), dice.Between(1, 30));
        dice.Paint(under, 10);
        kernels::Rotation rotation = Whole(source);
        rotation.pivotX = dice.Between(-5, source.width + 5);
        rotation.pivotY = dice.Between(-5, source.height + 5);
        rotation.targetX = dice.Between(-10, under.width + 10);
        rotation.targetY = dice.Between(-10, under.height + 10);
        rotation.angle = dice.Between(-400, 800);
        if (round % 3 == 0) {
            rotation.scaleX = static_cast<float>(dice.Between(1, 64)) / 16.0F;
            rotation.scaleY = static_cast<float>(dice.Between(1, 64)) / 16.0F;
        }
        rotation.filter = filter;
        kernels::Box clip;
        clip.width = dice.Between(1, under.width);
        clip.height = dice.Between(1, under.height);
        clip.x = dice.Between(0, under.width - clip.width);
        clip.y = dice.Between(0, under.height - clip.height);
        ASSERT_EQ(Expected(under, rotation, clip).pixels, Drawn(under, rotation, clip).pixels)
            << "round " << round << " angle " << rotation.angle;
    }
}

}  // namespace

TEST(SineTable, HoldsTheNearestValueForEveryDegree) {
    for (int degrees = -720; degrees <= 720; ++degrees) {
        const long double exact = std::sin(degrees * 3.14159265358979323846264338327950288L / 180.0L);
        ASSERT_NEAR(static_cast<double>(exact * 1073741824.0L), kernels::SineOf(degrees), 0.5000001)
            << degrees;
        ASSERT_EQ(kernels::SineOf(degrees + 90), kernels::CosineOf(degrees));
    }
}

TEST_P(Rotating, GivesTheReferenceBytesWithTheBilinearFilter) {
    RunRandomRotations(14, Filter::Bilinear);
}

TEST_P(Rotating, GivesTheReferenceBytesWithTheNearestFilter) {
    RunRandomRotations(15, Filter::Nearest);
}

TEST_P(Rotating, OfANeedleGivesTheReferenceBytesAtEveryAngle) {
    Dice dice(16);
    Picture source(150, 20);
    dice.Paint(source, 200);
    Picture under(330, 330);
    dice.Paint(under, 10);
    kernels::Rotation rotation = Whole(source);
    rotation.pivotX = 10;
    rotation.pivotY = 10;
    rotation.targetX = 160;
    rotation.targetY = 165;
    for (rotation.angle = 0; rotation.angle < 360; rotation.angle += 7) {
        const kernels::Box clip{0, 0, under.width, under.height};
        ASSERT_EQ(Expected(under, rotation, clip).pixels, Drawn(under, rotation, clip).pixels)
            << rotation.angle;
    }
}

TEST_P(Rotating, ByNothingIsTheIdentity) {
    Dice dice(17);
    Picture source(45, 12);
    dice.Paint(source, 6);
    const Picture under(45, 12);
    EXPECT_EQ(source.pixels, Drawn(under, Whole(source), {0, 0, 45, 12}).pixels);
}

TEST_P(Rotating, ByRightAnglesMovesWholePixelsClockwise) {
    Dice dice(18);
    Picture source(23, 9);
    dice.Paint(source, 6);
    const Picture under(47, 47);
    kernels::Rotation rotation = Whole(source);
    rotation.targetX = 23;
    rotation.targetY = 23;
    for (const Filter filter : {Filter::Nearest, Filter::Bilinear}) {
        rotation.filter = filter;
        for (const int angle : {90, 180, 270, 450, -90}) {
            rotation.angle = angle;
            const Picture target = Drawn(under, rotation, {0, 0, 47, 47});
            const int quarter = ((angle / 90) % 4 + 4) % 4;
            for (int y = 0; y < source.height; ++y) {
                for (int x = 0; x < source.width; ++x) {
                    const int turnedX = quarter == 1 ? -y : quarter == 2 ? -x : y;
                    const int turnedY = quarter == 1 ? x : quarter == 2 ? -y : -x;
                    ASSERT_EQ(*source.At(x, y), *target.At(23 + turnedX, 23 + turnedY)) << angle;
                }
            }
        }
    }
}

TEST_P(Rotating, ChangesNothingOutsideItsBounds) {
    Dice dice(19);
    Picture source(40, 10);
    source.pixels.assign(source.pixels.size(), 0xFFFFFFFFU);
    const Picture under(120, 120);
    kernels::Rotation rotation = Whole(source);
    rotation.targetX = 60;
    rotation.targetY = 60;
    const kernels::Box clip{0, 0, under.width, under.height};
    for (rotation.angle = 0; rotation.angle < 360; ++rotation.angle) {
        rotation.scaleX = static_cast<float>(dice.Between(1, 40)) / 16.0F;
        const kernels::Box bounds = kernels::RotatedBounds(clip, rotation);
        const Picture target = Drawn(under, rotation, clip);
        for (int y = 0; y < under.height; ++y) {
            for (int x = 0; x < under.width; ++x) {
                const bool isInside = x >= bounds.x && x < bounds.x + bounds.width && y >= bounds.y &&
                                      y < bounds.y + bounds.height;
                ASSERT_TRUE(isInside || *target.At(x, y) == 0) << x << "," << y << " at " << rotation.angle;
            }
        }
    }
}

TEST_P(Rotating, DrawsNothingForFactorsAndSizesOutOfRange) {
    Picture source(8, 8);
    source.pixels.assign(64, 0xFFFFFFFFU);
    const Picture under(16, 16);
    const float infinity = std::numeric_limits<float>::infinity();
    for (const float factor : {0.0F, -1.0F, 1e-9F, 1e9F, infinity, -infinity, std::nanf("")}) {
        kernels::Rotation rotation = Whole(source);
        rotation.scaleX = factor;
        EXPECT_EQ(under.pixels, Drawn(under, rotation, {0, 0, 16, 16}).pixels) << factor;
        rotation.scaleX = 1.0F;
        rotation.scaleY = factor;
        EXPECT_EQ(under.pixels, Drawn(under, rotation, {0, 0, 16, 16}).pixels) << factor;
    }
    kernels::Rotation rotation = Whole(source);
    rotation.sourceWidth = kernels::kLargestSide + 1;
    EXPECT_EQ(under.pixels, Drawn(under, rotation, {0, 0, 16, 16}).pixels);
    rotation.sourceWidth = 0;
    EXPECT_EQ(under.pixels, Drawn(under, rotation, {0, 0, 16, 16}).pixels);
}

TEST_P(Rotating, SurvivesPivotsAndAnglesAtTheEndsOfTheirRange) {
    Picture source(8, 8);
    source.pixels.assign(64, 0xFFFFFFFFU);
    const Picture under(16, 16);
    for (const int extreme : {INT_MIN, INT_MAX}) {
        for (const float factor : {1.0F / 1024, 1.0F, 1024.0F}) {
            kernels::Rotation rotation = Whole(source);
            rotation.scaleX = factor;
            rotation.scaleY = factor;
            rotation.angle = extreme;
            rotation.targetX = extreme;
            rotation.pivotY = extreme;
            EXPECT_EQ(under.pixels, Drawn(under, rotation, {0, 0, 16, 16}).pixels);
            rotation.targetY = extreme;
            rotation.pivotX = extreme;
            EXPECT_EQ(Expected(under, rotation, {0, 0, 16, 16}).pixels,
                      Drawn(under, rotation, {0, 0, 16, 16}).pixels);
        }
    }
}

KORVANE_ON_EVERY_TARGET(Rotating);
