#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <vector>

#include "engine/draw/kernels/RowFormats.h"

namespace kernels = korvane::kernels;

namespace {

std::vector<std::uint16_t> AllPacked() {
    std::vector<std::uint16_t> packed(65536);
    for (std::size_t i = 0; i < packed.size(); ++i) {
        packed[i] = static_cast<std::uint16_t>(i);
    }
    return packed;
}

/// The level of 0..`last` that is nearest to channel / 255.
std::uint32_t Nearest(std::uint32_t channel, int last) {
    return static_cast<std::uint32_t>(std::lround(channel * static_cast<double>(last) / 255.0));
}

}  // namespace

TEST(RowFormats, StoreEveryRgb565PixelAsItWasFetched) {
    const std::vector<std::uint16_t> packed = AllPacked();
    std::vector<std::uint32_t> wide(packed.size());
    std::vector<std::uint16_t> back(packed.size());
    kernels::FetchRowRgb565(wide.data(), packed.data(), packed.size());
    kernels::StoreRowRgb565(back.data(), wide.data(), wide.size());
    EXPECT_EQ(packed, back);
    EXPECT_EQ(0xFF000000U, wide.front());
    EXPECT_EQ(0xFFFFFFFFU, wide.back());
}

TEST(RowFormats, StoreEveryArgb4444PixelAsItWasFetched) {
    const std::vector<std::uint16_t> packed = AllPacked();
    std::vector<std::uint32_t> wide(packed.size());
    std::vector<std::uint16_t> back(packed.size());
    kernels::FetchRowArgb4444(wide.data(), packed.data(), packed.size());
    kernels::StoreRowArgb4444(back.data(), wide.data(), wide.size());
    EXPECT_EQ(packed, back);
    EXPECT_EQ(0x11223344U, wide[0x1234]);
}

TEST(RowFormats, TakeTheNearestLevelOfEachChannel) {
    for (std::uint32_t level = 0; level < 256; ++level) {
        const std::uint32_t pixel = level * 0x01010101U;
        std::uint16_t packed = 0;
        kernels::StoreRowRgb565(&packed, &pixel, 1);
        ASSERT_EQ(Nearest(level, 31) << 11 | Nearest(level, 63) << 5 | Nearest(level, 31), packed) << level;
        kernels::StoreRowArgb4444(&packed, &pixel, 1);
        ASSERT_EQ(Nearest(level, 15) * 0x1111U, packed) << level;
    }
}

TEST(RowFormats, KeepTheChannelsApart) {
    const std::uint32_t pixels[] = {0x00FF0000U, 0x0000FF00U, 0x000000FFU, 0xFF000000U};
    std::uint16_t packed[4] = {};
    kernels::StoreRowRgb565(packed, pixels, 4);
    EXPECT_EQ(0xF800, packed[0]);
    EXPECT_EQ(0x07E0, packed[1]);
    EXPECT_EQ(0x001F, packed[2]);
    EXPECT_EQ(0x0000, packed[3]);
    kernels::StoreRowArgb4444(packed, pixels, 4);
    EXPECT_EQ(0x0F00, packed[0]);
    EXPECT_EQ(0x00F0, packed[1]);
    EXPECT_EQ(0x000F, packed[2]);
    EXPECT_EQ(0xF000, packed[3]);
}

TEST(RowFormats, MakeXrgbPixelsOpaque) {
    const std::uint32_t source[] = {0x00123456U, 0x7F000000U, 0xFFFFFFFFU};
    std::uint32_t target[3] = {};
    kernels::FetchRowXrgb8888(target, source, 3);
    EXPECT_EQ(0xFF123456U, target[0]);
    EXPECT_EQ(0xFF000000U, target[1]);
    EXPECT_EQ(0xFFFFFFFFU, target[2]);
    kernels::StoreRowXrgb8888(target, source, 3);
    EXPECT_EQ(0xFF123456U, target[0]);
}
