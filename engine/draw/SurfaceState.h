#pragma once

#include <cstddef>
#include <cstdint>

#include "engine/core/Types.h"
#include "engine/draw/PixelBuffer.h"
#include "engine/draw/kernels/Kernels.h"

namespace korvane {

struct LqiImage;

/// A rectangle of a surface, counted in its own pixels: inside the surface and not empty, or 0 by 0.
using PixelBox = kernels::Box;

/// What a surface consists of. The engine's drawing code works on this.
///
/// Before it changes pixels it calls `ForgetPixels`; it changes none outside `Drawable`.
struct SurfaceState {
    PixelBuffer pixels;
    int width = 0;
    int height = 0;
    std::ptrdiff_t pitch = 0;  ///< Bytes from row to row; there are no gaps between rows.
    _eSurfaceType type = eSurface_None;

    /// Screen coordinates, see CLQSurface.
    int originX = 0;
    int originY = 0;
    _LQRect clip;
    bool hasClip = false;

    /// True while `runs` describes the pixels.
    bool runsKnown = false;
    kernels::RunTable runs;

    /// Replaces size, type and pixels; the pixels are 0, or black in formats without alpha. False, with all
    /// as it was, for a size or type that no surface has and when memory is short.
    bool Allocate(int newWidth, int newHeight, _eSurfaceType newType);
    /// Takes over a decoded image and finds out what it knows about itself.
    void Adopt(LqiImage&& image);

    /// The pixels are about to change: drops what is known about them.
    void ForgetPixels() {
        runsKnown = false;
        argbValid_ = false;
    }

    bool IsOpaque() const;

    /// The part of the rectangle, given by its edges in screen coordinates, that drawing may change: bounded
    /// by the surface, its clip and `bounds` (null: no more bounds). Edges may have any value; where right or
    /// bottom does not lie behind left or top nothing remains.
    PixelBox Drawable(std::int64_t left, std::int64_t top, std::int64_t right, std::int64_t bottom,
                      const _LQRect* bounds = nullptr) const;

    /// All that drawing may change.
    PixelBox DrawableAll() const;

    /// Address of a pixel inside the surface.
    std::uint8_t* At(int x, int y);
    const std::uint8_t* At(int x, int y) const;
    /// The same for types that the kernels take as they are (IsKernelFormat).
    kernels::Pixel* PixelAt(int x, int y) { return reinterpret_cast<kernels::Pixel*>(At(x, y)); }
    const kernels::Pixel* PixelAt(int x, int y) const {
        return reinterpret_cast<const kernels::Pixel*>(At(x, y));
    }
    /// Pixels from row to row, for the same types.
    std::ptrdiff_t Stride() const { return pitch / static_cast<std::ptrdiff_t>(sizeof(kernels::Pixel)); }

    /// `count` pixels of a row as premultiplied ARGB, and back. The latter does not call ForgetPixels.
    void Fetch(int x, int y, int count, kernels::Pixel* argb) const;
    void Store(int x, int y, int count, const kernels::Pixel* argb);

    /// All pixels as premultiplied ARGB, `width` pixels from row to row, null when memory is short. They are
    /// the surface's own pixels or, for 16-bit types and always when `separate` is true, a copy. The copy
    /// keeps its memory for the next time, so that repeated drawing from one surface allocates once.
    const kernels::Pixel* AsArgb(bool separate);

  private:
    PixelBuffer argb_;
    bool argbValid_ = false;
};

/// Blends a premultiplied colour (see Premultiply) over a surface of any type through an 8-bit coverage mask,
/// whose first value lies at the screen position (x, y). Bounded as `Drawable` says. `maskStride` is in
/// bytes.
void BlendMask(SurfaceState& target, const std::uint8_t* mask, std::ptrdiff_t maskStride, int x, int y,
               int width, int height, kernels::Pixel color, const _LQRect* bounds = nullptr);

}  // namespace korvane
