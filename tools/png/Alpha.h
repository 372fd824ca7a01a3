#pragma once

#include <algorithm>
#include <cstdint>

/// Single colour channels with and without their alpha multiplied in, both in 0..255, rounded to nearest.
namespace korvane::png {

constexpr std::uint32_t Premultiplied(std::uint32_t channel, std::uint32_t alpha) {
    return (channel * alpha + 127U) / 255U;
}

/// A channel above its alpha, which no valid pixel has, counts as full.
constexpr std::uint32_t Straight(std::uint32_t channel, std::uint32_t alpha) {
    return alpha == 0 ? 0U : std::min((channel * 255U + alpha / 2U) / alpha, 255U);
}

}  // namespace korvane::png
