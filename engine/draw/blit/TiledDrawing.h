#pragma once

#include <algorithm>

#include "engine/draw/PixelFormat.h"
#include "engine/draw/SurfaceState.h"

namespace korvane {

/// Pixels that drawing on 16-bit surfaces works on at a time.
constexpr int kTileWidth = 512;

/// Draws on a surface of any type with a kernel that takes premultiplied ARGB.
///
/// Calls `draw(pixels, stride, part)` for parts of `box` that together cover it: one call with the surface's
/// own pixels where the kernels take them, else one for each piece of a row, which is fetched before and
/// stored after. `pixels` is the pixel of the part's corner.
template <typename Draw>
void DrawTiled(SurfaceState& target, const PixelBox& box, Draw&& draw) {
    target.ForgetPixels();
    if (IsKernelFormat(target.type)) {
        draw(target.PixelAt(box.x, box.y), target.Stride(), box);
        return;
    }
    kernels::Pixel tile[kTileWidth];
    for (int row = 0; row < box.height; ++row) {
        for (int done = 0; done < box.width; done += kTileWidth) {
            const PixelBox part{box.x + done, box.y + row, std::min(box.width - done, kTileWidth), 1};
            target.Fetch(part.x, part.y, part.width, tile);
            draw(tile, std::ptrdiff_t{kTileWidth}, part);
            target.Store(part.x, part.y, part.width, tile);
        }
    }
}

}  // namespace korvane
