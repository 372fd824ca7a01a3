#include <cstdint>
#include <gtest/gtest.h>

#include "engine/draw/kernels/Kernels.h"

#include "tests/kernels/EveryTarget.h"
#include "tests/kernels/Picture.h"
#include "tests/kernels/Reference.h"

namespace kernels = korvane::kernels;

namespace {

class Stretching : public EveryTarget {};

struct RandomStretch {
    explicit RandomStretch(Dice& dice) : source(dice.Between(1, 24), dice.Between(1, 12)) {
        dice.Paint(source, 20);
        scaling.sourceWidth = dice.Between(1, source.width);
        scaling.sourceHeight = dice.Between(1, source.height);
        scaling.source = source.At(dice.Between(0, source.width - scaling.sourceWidth),
                                   dice.Between(0, source.height - scaling.sourceHeight));
        scaling.sourceStride = source.width;
        scaling.targetWidth = SizeFor(dice, scaling.sourceWidth);
        scaling.targetHeight = SizeFor(dice, scaling.sourceHeight);
        part.width = dice.Between(1, scaling.targetWidth);
        part.height = dice.Between(1, scaling.targetHeight);
        part.x = dice.Between(0, scaling.targetWidth - part.width);
        part.y = dice.Between(0, scaling.targetHeight - part.height);
    }

    /// Halves, whole multiples and anything between.
    static int SizeFor(Dice& dice, int size) {
        switch (dice.Between(0, 5)) {
            case 0:
                return size % 2 == 0 ? size / 2 : size;
            case 1:
                return size;
            case 2:
                return size * 2;
            default:
                return dice.Between(1, 40);
        }
    }

    Picture source;
    kernels::Scaling scaling;
    kernels::Box part;
};

}  // namespace

TEST_P(Stretching, StoresTheReferenceBytesOfEveryPart) {
    Dice dice(9);
    for (int round = 0; round < 15000; ++round) {
        const RandomStretch stretch(dice);
        Picture target(stretch.part.width + 1, stretch.part.height);
        Picture expected = target;
        for (int y = 0; y < stretch.part.height; ++y) {
            for (int x = 0; x < stretch.part.width; ++x) {
                *expected.At(x, y) =
                    reference::Scaled(stretch.scaling, stretch.part.x + x, stretch.part.y + y);
            }
        }
        kernels::StretchCopy(target.At(0, 0), target.width, stretch.scaling, stretch.part);
        ASSERT_EQ(expected.pixels, target.pixels) << "round " << round;
    }
}

TEST_P(Stretching, BlendsTheReferenceBytesOfEveryPart) {
    Dice dice(10);
    for (int round = 0; round < 15000; ++round) {
        const RandomStretch stretch(dice);
        Picture target(stretch.part.width + 1, stretch.part.height);
        dice.Paint(target, 5);
        Picture expected = target;
        for (int y = 0; y < stretch.part.height; ++y) {
            for (int x = 0; x < stretch.part.width; ++x) {
                *expected.At(x, y) = reference::Over(
                    reference::Scaled(stretch.scaling, stretch.part.x + x, stretch.part.y + y),
                    *target.At(x, y));
            }
        }
        kernels::StretchOver(target.At(0, 0), target.width, stretch.scaling, stretch.part);
        ASSERT_EQ(expected.pixels, target.pixels) << "round " << round;
    }
}

TEST_P(Stretching, ToTheSameSizeIsACopy) {
    Dice dice(11);
    Picture source(61, 17);
    dice.Paint(source, 9);
    Picture target(61, 17);
    kernels::StretchCopy(target.At(0, 0), 61, {source.At(0, 0), 61, 61, 17, 61, 17}, {0, 0, 61, 17});
    EXPECT_EQ(source.pixels, target.pixels);
}

TEST_P(Stretching, ToHalfTheSizeIsTheMeanOfFour) {
    Picture source(32, 2);
    for (int x = 0; x < 32; ++x) {
        *source.At(x, 0) = x % 2 == 0 ? 0xFF000000U : 0xFFFFFFFFU;
        *source.At(x, 1) = 0xFF404040U;
    }
    Picture target(16, 1);
    kernels::StretchCopy(target.At(0, 0), 16, {source.At(0, 0), 32, 32, 2, 16, 1}, {0, 0, 16, 1});
    EXPECT_EQ(std::vector<std::uint32_t>(16, 0xFF606060U), target.pixels);
}

TEST_P(Stretching, ReachesTheLargestSides) {
    Picture source(kernels::kLargestSide, 1);
    Dice dice(12);
    dice.Paint(source, 4);
    const kernels::Scaling wide{source.At(0, 0), source.width, source.width, 1, kernels::kLargestSide - 1, 1};
    Picture target(wide.targetWidth, 1);
    kernels::StretchCopy(target.At(0, 0), target.width, wide, {0, 0, target.width, 1});
    for (int x = 0; x < target.width; ++x) {
        ASSERT_EQ(reference::Scaled(wide, x, 0), *target.At(x, 0)) << x;
    }
    const kernels::Scaling tall{source.At(5, 0), source.width, 1, 1, 1, kernels::kLargestSide};
    Picture column(1, 300);
    kernels::StretchCopy(column.At(0, 0), 1, tall, {0, kernels::kLargestSide - 300, 1, 300});
    EXPECT_EQ(std::vector<std::uint32_t>(300, *source.At(5, 0)), column.pixels);
}

TEST_P(Stretching, OfAnOpaqueBlockStaysOpaque) {
    Dice dice(13);
    Picture source(30, 20);
    for (std::uint32_t& pixel : source.pixels) {
        pixel = dice.Bits() | 0xFF000000U;
    }
    Picture target(77, 55);
    kernels::StretchCopy(target.At(0, 0), 77, {source.At(0, 0), 30, 30, 20, 77, 55}, {0, 0, 77, 55});
    for (const std::uint32_t pixel : target.pixels) {
        ASSERT_GE(pixel, 0xFF000000U);
    }
}

KORVANE_ON_EVERY_TARGET(Stretching);
