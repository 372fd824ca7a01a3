#pragma once

#include <cstddef>
#include <cstdint>

#include "engine/draw/kernels/Runs.h"

/// The pixel kernels: the inner loops of all drawing, in the widest vectors that the machine has.
///
/// Pixels are premultiplied ARGB, 0xAARRGGBB. Strides are in pixels (in bytes for 8-bit masks) and may be
/// negative. Bounds are the caller's duty: every block lies inside its surface, widths and heights are above
/// 0, and except for CopyBlock source and target do not overlap.
///
/// Arithmetic is integer and the same on every target, to the byte. With x / 255 rounded to nearest, which is
/// Div255(x) = (t + (t >> 8)) >> 8 for t = x + 128, exact for x in 0..65535 - 128:
///   over        s + Div255(d * (255 - alpha(s))), channel by channel; a sum beyond 255 stays at 255;
///   mask        Div255(c * m + d * (255 - Div255(alpha(c) * m)));
///   filtering   Lerp(a, b, w) = (a * (256 - w) + b * w + 128) >> 8 with w in 0..256, first along x, then
///   along
///               y. Positions are 16.16 fixed point; w is their fraction's upper eight bits.
/// A source channel above its alpha is not a valid premultiplied colour: the result is unspecified but
/// stable.
namespace korvane::kernels {

using Pixel = std::uint32_t;

struct Box {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
};

/// Plain copy; the blocks may overlap.
void CopyBlock(Pixel* target, std::ptrdiff_t targetStride, const Pixel* source, std::ptrdiff_t sourceStride,
               int width, int height);

/// Source over target.
void OverBlock(Pixel* target, std::ptrdiff_t targetStride, const Pixel* source, std::ptrdiff_t sourceStride,
               int width, int height);

/// Source over target with the help of the runs of the whole source image. (sourceX, sourceY) is the block's
/// position in that image, `image` its first pixel. Gives what OverBlock gives.
void OverRuns(Pixel* target, std::ptrdiff_t targetStride, const Pixel* image, std::ptrdiff_t imageStride,
              const RunTable& runs, int sourceX, int sourceY, int width, int height);

/// Stores a premultiplied colour.
void FillBlock(Pixel* target, std::ptrdiff_t targetStride, Pixel color, int width, int height);

/// Blends a premultiplied colour over the target.
void FillOverBlock(Pixel* target, std::ptrdiff_t targetStride, Pixel color, int width, int height);

/// Blends a premultiplied colour over the target through an 8-bit coverage mask: the glyph kernel.
void MaskOverBlock(Pixel* target, std::ptrdiff_t targetStride, const std::uint8_t* mask,
                   std::ptrdiff_t maskStride, Pixel color, int width, int height);

/// Largest width and height of anything that is scaled or rotated.
constexpr int kLargestSide = 16384;

/// A source block and the size to which it is scaled. All four sizes lie in 1..kLargestSide.
///
/// Target pixel x takes the source position (x + 0.5) * sourceWidth / targetWidth - 0.5, rounded down to
/// 16.16 and clamped to the block's edge pixels: nothing outside the block is read.
struct Scaling {
    const Pixel* source = nullptr;  ///< First pixel of the source block.
    std::ptrdiff_t sourceStride = 0;
    int sourceWidth = 0;
    int sourceHeight = 0;
    int targetWidth = 0;
    int targetHeight = 0;
};

/// Stores the part `part` of the scaled block; `target` is the pixel of the part's corner. Each pixel comes
/// out the same whatever the part is.
void StretchCopy(Pixel* target, std::ptrdiff_t targetStride, const Scaling& scaling, const Box& part);

/// As StretchCopy, but blends over the target.
void StretchOver(Pixel* target, std::ptrdiff_t targetStride, const Scaling& scaling, const Box& part);

enum class Filter { Nearest, Bilinear };

/// A source image turned clockwise by whole degrees, and scaled before that, about a pivot.
///
/// Pivots name pixels, whose centres come to lie on each other: source pixel (pivotX, pivotY) lands on target
/// pixel (targetX, targetY). So angle 0 is the identity and multiples of 90 map pixel to pixel. Outside the
/// image the source is transparent, which smooths the edges under the bilinear filter.
struct Rotation {
    const Pixel* source = nullptr;
    std::ptrdiff_t sourceStride = 0;  ///< At most 4 * kLargestSide.
    int sourceWidth = 0;              ///< 1..kLargestSide, as is the height.
    int sourceHeight = 0;
    int pivotX = 0;  ///< May lie outside the source.
    int pivotY = 0;
    int targetX = 0;
    int targetY = 0;
    int angle = 0;        ///< Degrees, any integer.
    float scaleX = 1.0F;  ///< Within 1/1024..1024; anything else, NaN included, draws nothing.
    float scaleY = 1.0F;
    Filter filter = Filter::Bilinear;
};

/// Blends the turned image over the part `clip` of the target, whose pixel (0, 0) is `target`. Each pixel
/// comes out the same whatever the clip is.
void RotateOver(Pixel* target, std::ptrdiff_t targetStride, const Box& clip, const Rotation& rotation);

/// The part of `clip` outside of which RotateOver leaves the target alone; 0 by 0 when it draws nothing.
Box RotatedBounds(const Box& clip, const Rotation& rotation);

}  // namespace korvane::kernels
