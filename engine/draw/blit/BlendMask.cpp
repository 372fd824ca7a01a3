#include "engine/draw/SurfaceState.h"
#include "engine/draw/blit/TiledDrawing.h"

namespace korvane {

void BlendMask(SurfaceState& target, const std::uint8_t* mask, std::ptrdiff_t maskStride, int x, int y,
               int width, int height, kernels::Pixel color, const _LQRect* bounds) {
    const PixelBox box = target.Drawable(x, y, std::int64_t{x} + width, std::int64_t{y} + height, bounds);
    if (box.width == 0 || color == 0)
        return;
    // Both positions lie within the surface, so their differences are small.
    const std::int64_t maskLeft = std::int64_t{x} - target.originX;
    const std::int64_t maskTop = std::int64_t{y} - target.originY;
    DrawTiled(target, box, [&](kernels::Pixel* pixels, std::ptrdiff_t stride, const PixelBox& part) {
        const auto column = static_cast<std::ptrdiff_t>(part.x - maskLeft);
        const auto row = static_cast<std::ptrdiff_t>(part.y - maskTop);
        kernels::MaskOverBlock(pixels, stride, mask + row * maskStride + column, maskStride, color,
                               part.width, part.height);
    });
}

}  // namespace korvane
