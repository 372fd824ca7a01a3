#include "engine/draw/kernels/RowFormats.h"

namespace korvane::kernels {
namespace {

constexpr std::uint32_t kOpaque = 0xFF000000U;

/// The nearest of 32, 64 and 16 levels; equal to (c * levels + 127) / 255 for c in 0..255.
constexpr std::uint32_t ToFiveBits(std::uint32_t c) {
    return (c * 249U + 1014U) >> 11;
}
constexpr std::uint32_t ToSixBits(std::uint32_t c) {
    return (c * 253U + 505U) >> 10;
}
constexpr std::uint32_t ToFourBits(std::uint32_t c) {
    return (c * 15U + 135U) >> 8;
}

constexpr std::uint32_t Red(std::uint32_t pixel) {
    return (pixel >> 16) & 255U;
}
constexpr std::uint32_t Green(std::uint32_t pixel) {
    return (pixel >> 8) & 255U;
}
constexpr std::uint32_t Blue(std::uint32_t pixel) {
    return pixel & 255U;
}

}  // namespace

void FetchRowRgb565(std::uint32_t* target, const std::uint16_t* source, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        const std::uint32_t packed = source[i];
        const std::uint32_t red = packed >> 11;
        const std::uint32_t green = (packed >> 5) & 63U;
        const std::uint32_t blue = packed & 31U;
        target[i] =
            kOpaque | (red << 3 | red >> 2) << 16 | (green << 2 | green >> 4) << 8 | (blue << 3 | blue >> 2);
    }
}

void StoreRowRgb565(std::uint16_t* target, const std::uint32_t* source, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        target[i] =
            static_cast<std::uint16_t>(ToFiveBits(Red(source[i])) << 11 | ToSixBits(Green(source[i])) << 5 |
                                       ToFiveBits(Blue(source[i])));
    }
}

void FetchRowXrgb8888(std::uint32_t* target, const std::uint32_t* source, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        target[i] = source[i] | kOpaque;
    }
}

void StoreRowXrgb8888(std::uint32_t* target, const std::uint32_t* source, std::size_t count) {
    FetchRowXrgb8888(target, source, count);
}

void FetchRowArgb4444(std::uint32_t* target, const std::uint16_t* source, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        const std::uint32_t packed = source[i];
        const std::uint32_t spread =
            (packed & 0xF000U) << 12 | (packed & 0x0F00U) << 8 | (packed & 0x00F0U) << 4 | (packed & 0x000FU);
        target[i] = spread * 17U;
    }
}

void StoreRowArgb4444(std::uint16_t* target, const std::uint32_t* source, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        target[i] =
            static_cast<std::uint16_t>(ToFourBits(source[i] >> 24) << 12 | ToFourBits(Red(source[i])) << 8 |
                                       ToFourBits(Green(source[i])) << 4 | ToFourBits(Blue(source[i])));
    }
}

}  // namespace korvane::kernels
