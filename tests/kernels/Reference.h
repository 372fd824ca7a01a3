#pragma once

#include <cstdint>

#include "engine/draw/kernels/Kernels.h"

/// What the kernels must give, one channel of one pixel at a time and without any of their short cuts.
/// Follows the formulas of Kernels.h and shares no code with the kernels.
namespace reference {

using Pixel = std::uint32_t;

/// x / 255, rounded to nearest.
std::uint32_t Div255(std::uint32_t x);

Pixel Over(Pixel source, Pixel target);
Pixel MaskOver(Pixel color, std::uint32_t mask, Pixel target);
Pixel Lerp(Pixel a, Pixel b, std::uint32_t weight);

/// Pixel (x, y) of the whole scaled block.
Pixel Scaled(const korvane::kernels::Scaling& scaling, int x, int y);

/// A turned image, asked pixel by pixel.
class Turned {
  public:
    explicit Turned(const korvane::kernels::Rotation& rotation);

    /// What it puts over target pixel (x, y); 0 outside.
    Pixel At(int x, int y) const;

  private:
    Pixel SourceAt(std::int64_t column, std::int64_t row) const;

    korvane::kernels::Rotation rotation_;
    std::int64_t cosineX_;
    std::int64_t sineX_;
    std::int64_t sineY_;
    std::int64_t cosineY_;
};

}  // namespace reference
