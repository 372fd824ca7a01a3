#pragma once

#include <cstdint>

/// The kernels' arithmetic for one pixel, two channels at a time in the halves of a 32-bit integer. The
/// stated rounding is in Kernels.h.
namespace korvane::kernels::plain {

constexpr std::uint32_t kPairs = 0x00FF00FFU;
constexpr std::uint32_t kHalves = 0x00800080U;

/// Both halves hold x in 0..65407; both results in 0..255.
constexpr std::uint32_t Div255Pair(std::uint32_t pair) {
    const std::uint32_t t = pair + kHalves;
    return ((t + ((t >> 8) & kPairs)) >> 8) & kPairs;
}

/// Adds halves in 0..255; a sum beyond 255 stays at 255.
constexpr std::uint32_t AddPair(std::uint32_t a, std::uint32_t b) {
    const std::uint32_t sum = a + b;
    const std::uint32_t carries = (sum >> 8) & 0x00010001U;
    return (sum | (carries * 0xFFU)) & kPairs;
}

constexpr std::uint32_t Over(std::uint32_t source, std::uint32_t target) {
    const std::uint32_t inverse = 255U - (source >> 24);
    const std::uint32_t low = Div255Pair((target & kPairs) * inverse);
    const std::uint32_t high = Div255Pair(((target >> 8) & kPairs) * inverse);
    return AddPair(source & kPairs, low) | (AddPair((source >> 8) & kPairs, high) << 8);
}

/// `color` has no channel above its alpha.
constexpr std::uint32_t MaskOver(std::uint32_t color, std::uint32_t mask, std::uint32_t target) {
    const std::uint32_t alphaProduct = (color >> 24) * mask + 128U;
    const std::uint32_t inverse = 255U - ((alphaProduct + (alphaProduct >> 8)) >> 8);
    const std::uint32_t low = Div255Pair((color & kPairs) * mask + (target & kPairs) * inverse);
    const std::uint32_t high =
        Div255Pair(((color >> 8) & kPairs) * mask + ((target >> 8) & kPairs) * inverse);
    return low | (high << 8);
}

/// `weight` of `b` in 0..256.
constexpr std::uint32_t Lerp(std::uint32_t a, std::uint32_t b, std::uint32_t weight) {
    const std::uint32_t rest = 256U - weight;
    const std::uint32_t low = (((a & kPairs) * rest + (b & kPairs) * weight + kHalves) >> 8) & kPairs;
    const std::uint32_t high = ((a >> 8) & kPairs) * rest + ((b >> 8) & kPairs) * weight + kHalves;
    return low | (high & ~kPairs);
}

}  // namespace korvane::kernels::plain
