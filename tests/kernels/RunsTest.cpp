#include <cstdint>
#include <gtest/gtest.h>

#include "engine/draw/kernels/Kernels.h"
#include "engine/draw/kernels/Runs.h"

#include "tests/kernels/EveryTarget.h"
#include "tests/kernels/Picture.h"
#include "tests/kernels/Reference.h"

namespace kernels = korvane::kernels;
using kernels::Coverage;

namespace {

Coverage CoverageOf(const Picture& picture) {
    return kernels::BuildRuns(picture.At(0, 0), picture.width, picture.width, picture.height).coverage;
}

class ImageRuns : public EveryTarget {};

}  // namespace

TEST(RunTable, KnowsATransparentAnOpaqueAndASoftImage) {
    Picture picture(50, 10);
    EXPECT_EQ(Coverage::Empty, CoverageOf(picture));
    picture.pixels.assign(picture.pixels.size(), 0xFF102030U);
    EXPECT_EQ(Coverage::Solid, CoverageOf(picture));
    picture.pixels.assign(picture.pixels.size(), 0x80102030U);
    EXPECT_EQ(Coverage::Soft, CoverageOf(picture));
}

TEST(RunTable, OfAnImageWithoutPixelsIsEmpty) {
    const std::uint32_t pixel = 0xFFFFFFFFU;
    EXPECT_EQ(Coverage::Empty, kernels::BuildRuns(nullptr, 4, 4, 4).coverage);
    EXPECT_EQ(Coverage::Empty, kernels::BuildRuns(&pixel, 1, 0, 1).coverage);
    EXPECT_EQ(Coverage::Empty, kernels::BuildRuns(&pixel, 1, 1, -1).coverage);
}

TEST(RunTable, RowsAddUpToTheWidthAndSayWhatThePixelsAre) {
    Dice dice(7);
    for (int round = 0; round < 3000; ++round) {
        Picture picture(dice.Between(1, 300), dice.Between(1, 6));
        dice.Paint(picture, 90);
        const kernels::RunTable table =
            kernels::BuildRuns(picture.At(0, 0), picture.width, picture.width, picture.height);
        if (table.coverage != Coverage::Mixed) {
            continue;
        }
        ASSERT_EQ(static_cast<std::size_t>(picture.height), table.rows.size());
        for (int y = 0; y < picture.height; ++y) {
            std::size_t run = table.rows[static_cast<std::size_t>(y)];
            int x = 0;
            while (x < picture.width) {
                ASSERT_LT(run, table.runs.size());
                ASSERT_GT(table.runs[run].length, 0);
                for (int end = x + table.runs[run].length; x < end; ++x) {
                    ASSERT_LT(x, picture.width);
                    const std::uint32_t pixel = *picture.At(x, y);
                    ASSERT_TRUE(table.runs[run].kind != kernels::RunKind::Empty || pixel == 0);
                    ASSERT_TRUE(table.runs[run].kind != kernels::RunKind::Solid || pixel >= 0xFF000000U);
                }
                ++run;
            }
        }
    }
}

TEST(RunTable, SplitsARunThatIsTooLongForItsCounter) {
    Picture picture(200000, 1);
    *picture.At(199999, 0) = 0x40000000U;
    const kernels::RunTable table = kernels::BuildRuns(picture.At(0, 0), picture.width, picture.width, 1);
    ASSERT_EQ(Coverage::Mixed, table.coverage);
    std::size_t length = 0;
    for (const kernels::Run& run : table.runs) {
        length += run.length;
    }
    EXPECT_EQ(200000U, length);
}

TEST_P(ImageRuns, GiveTheBytesOfAPlainBlendForEveryPartOfAnImage) {
    Dice dice(8);
    for (int image = 0; image < 2500; ++image) {
        Picture source(dice.Between(1, 120), dice.Between(1, 6));
        dice.Paint(source, image % 2 == 0 ? 60 : 500);
        const kernels::RunTable runs =
            kernels::BuildRuns(source.At(0, 0), source.width, source.width, source.height);
        for (int part = 0; part < 20; ++part) {
            const int width = dice.Between(1, source.width);
            const int height = dice.Between(1, source.height);
            const int sourceX = dice.Between(0, source.width - width);
            const int sourceY = dice.Between(0, source.height - height);
            Picture target(width, height);
            dice.Paint(target, 5);
            Picture expected = target;
            for (int y = 0; y < height; ++y) {
                for (int x = 0; x < width; ++x) {
                    *expected.At(x, y) =
                        reference::Over(*source.At(sourceX + x, sourceY + y), *target.At(x, y));
                }
            }
            kernels::OverRuns(target.At(0, 0), width, source.At(0, 0), source.width, runs, sourceX, sourceY,
                              width, height);
            ASSERT_EQ(expected.pixels, target.pixels) << "image " << image << " part " << part;
        }
    }
}

KORVANE_ON_EVERY_TARGET(ImageRuns);
