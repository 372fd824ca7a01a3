#include <cstdint>
#include <gtest/gtest.h>
#include <vector>

#include "engine/draw/kernels/Kernels.h"

#include "tests/kernels/EveryTarget.h"
#include "tests/kernels/Picture.h"
#include "tests/kernels/Reference.h"

namespace kernels = korvane::kernels;

namespace {

constexpr int kRounds = 60000;

/// A block of random size at a random place in two random pictures.
struct Blocks {
    explicit Blocks(Dice& dice)
        : width(dice.Between(1, dice.Between(0, 7) == 0 ? 90 : 20)),
          height(dice.Between(1, 3)),
          source(width + dice.Between(0, 3), height + dice.Between(0, 1)),
          target(width + dice.Between(0, 3), height + dice.Between(0, 1)),
          sourceX(dice.Between(0, source.width - width)),
          sourceY(dice.Between(0, source.height - height)),
          targetX(dice.Between(0, target.width - width)),
          targetY(dice.Between(0, target.height - height)) {
        dice.Paint(source, 40);
        dice.Paint(target, 8);
    }

    template <class Function>
    Picture Expected(Function function) const {
        Picture expected = target;
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) {
                std::uint32_t* pixel = expected.At(targetX + x, targetY + y);
                *pixel = function(x, y, *pixel);
            }
        }
        return expected;
    }

    std::uint32_t* Corner() { return target.At(targetX, targetY); }
    const std::uint32_t* SourceCorner() const { return source.At(sourceX, sourceY); }

    int width;
    int height;
    Picture source;
    Picture target;
    int sourceX;
    int sourceY;
    int targetX;
    int targetY;
};

class PixelBlocks : public EveryTarget {};

}  // namespace

TEST_P(PixelBlocks, AreCopiedAsTheyAre) {
    Dice dice(1);
    for (int round = 0; round < kRounds; ++round) {
        Blocks blocks(dice);
        const Picture expected = blocks.Expected([&](int x, int y, std::uint32_t) {
            return *blocks.source.At(blocks.sourceX + x, blocks.sourceY + y);
        });
        kernels::CopyBlock(blocks.Corner(), blocks.target.width, blocks.SourceCorner(), blocks.source.width,
                           blocks.width, blocks.height);
        ASSERT_EQ(expected.pixels, blocks.target.pixels) << "round " << round;
    }
}

TEST_P(PixelBlocks, AreBlendedOverTheTarget) {
    Dice dice(2);
    for (int round = 0; round < kRounds; ++round) {
        Blocks blocks(dice);
        const Picture expected = blocks.Expected([&](int x, int y, std::uint32_t under) {
            return reference::Over(*blocks.source.At(blocks.sourceX + x, blocks.sourceY + y), under);
        });
        kernels::OverBlock(blocks.Corner(), blocks.target.width, blocks.SourceCorner(), blocks.source.width,
                           blocks.width, blocks.height);
        ASSERT_EQ(expected.pixels, blocks.target.pixels) << "round " << round;
    }
}

TEST_P(PixelBlocks, AreFilledWithAColor) {
    Dice dice(3);
    for (int round = 0; round < kRounds; ++round) {
        Blocks blocks(dice);
        const std::uint32_t color = dice.Color();
        const Picture expected = blocks.Expected([&](int, int, std::uint32_t) { return color; });
        kernels::FillBlock(blocks.Corner(), blocks.target.width, color, blocks.width, blocks.height);
        ASSERT_EQ(expected.pixels, blocks.target.pixels) << "round " << round;
    }
}

TEST_P(PixelBlocks, TakeAColorOverThem) {
    Dice dice(4);
    for (int round = 0; round < kRounds; ++round) {
        Blocks blocks(dice);
        const std::uint32_t color = round % 8 == 0 ? dice.Bits() | 0xFF000000U : dice.Color();
        const Picture expected =
            blocks.Expected([&](int, int, std::uint32_t under) { return reference::Over(color, under); });
        kernels::FillOverBlock(blocks.Corner(), blocks.target.width, color, blocks.width, blocks.height);
        ASSERT_EQ(expected.pixels, blocks.target.pixels) << "round " << round;
    }
}

TEST_P(PixelBlocks, TakeAColorThroughAMask) {
    Dice dice(5);
    for (int round = 0; round < kRounds; ++round) {
        Blocks blocks(dice);
        const std::uint32_t color = round % 2 == 0 ? dice.Bits() | 0xFF000000U : dice.Color();
        const int maskStride = blocks.width + dice.Between(0, 5);
        std::vector<std::uint8_t> mask(
            static_cast<std::size_t>(maskStride * (blocks.height - 1) + blocks.width));
        for (std::uint8_t& cover : mask) {
            const int kind = dice.Between(0, 3);
            cover = static_cast<std::uint8_t>(kind == 0 ? 0 : kind == 1 ? 255 : dice.Between(0, 255));
        }
        const Picture expected = blocks.Expected([&](int x, int y, std::uint32_t under) {
            return reference::MaskOver(color, mask[static_cast<std::size_t>(y * maskStride + x)], under);
        });
        kernels::MaskOverBlock(blocks.Corner(), blocks.target.width, mask.data(), maskStride, color,
                               blocks.width, blocks.height);
        ASSERT_EQ(expected.pixels, blocks.target.pixels) << "round " << round;
    }
}

TEST_P(PixelBlocks, BlendEveryAlphaWithEveryLevel) {
    // One row per alpha: source channels at 0, in the middle and at the alpha, over all 256 levels.
    for (std::uint32_t alpha = 0; alpha < 256; ++alpha) {
        const std::uint32_t color = alpha << 24 | alpha << 16 | (alpha / 2) << 8;
        Picture source(256, 1);
        Picture target(256, 1);
        Picture expected(256, 1);
        for (std::uint32_t level = 0; level < 256; ++level) {
            source.pixels[level] = color;
            target.pixels[level] = level * 0x01010101U;
            expected.pixels[level] = reference::Over(color, level * 0x01010101U);
        }
        Picture filled = target;
        kernels::OverBlock(target.At(0, 0), 256, source.At(0, 0), 256, 256, 1);
        kernels::FillOverBlock(filled.At(0, 0), 256, color, 256, 1);
        ASSERT_EQ(expected.pixels, target.pixels) << "alpha " << alpha;
        ASSERT_EQ(expected.pixels, filled.pixels) << "alpha " << alpha;
    }
}

TEST_P(PixelBlocks, StopAt255WhenAColorIsBrighterThanItsAlpha) {
    Picture source(37, 1);
    Picture target(37, 1);
    source.pixels.assign(37, 0x10FFFFFFU);
    target.pixels.assign(37, 0xFFFFFFFFU);
    kernels::OverBlock(target.At(0, 0), 37, source.At(0, 0), 37, 37, 1);
    EXPECT_EQ(std::vector<std::uint32_t>(37, 0xFFFFFFFFU), target.pixels);
}

TEST_P(PixelBlocks, AreCopiedWithinOnePictureWhateverTheDirection) {
    Dice dice(6);
    for (int round = 0; round < kRounds; ++round) {
        Picture picture(dice.Between(1, 40), dice.Between(1, 5));
        dice.Paint(picture, 3);
        const int width = dice.Between(1, picture.width);
        const int height = dice.Between(1, picture.height);
        const int sourceX = dice.Between(0, picture.width - width);
        const int sourceY = dice.Between(0, picture.height - height);
        const int targetX = dice.Between(0, picture.width - width);
        const int targetY = dice.Between(0, picture.height - height);
        Picture expected = picture;
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) {
                *expected.At(targetX + x, targetY + y) = *picture.At(sourceX + x, sourceY + y);
            }
        }
        kernels::CopyBlock(picture.At(targetX, targetY), picture.width, picture.At(sourceX, sourceY),
                           picture.width, width, height);
        ASSERT_EQ(expected.pixels, picture.pixels) << "round " << round;
    }
}

KORVANE_ON_EVERY_TARGET(PixelBlocks);
