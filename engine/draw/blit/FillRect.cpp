#include <algorithm>

#include "engine/draw/Surface.h"
#include "engine/draw/blit/TiledDrawing.h"

using korvane::PixelBox;
using korvane::SurfaceState;
using korvane::kernels::Pixel;

namespace {

void StoreColor(SurfaceState& target, const PixelBox& box, Pixel color) {
    target.ForgetPixels();
    if (korvane::IsKernelFormat(target.type)) {
        if (!korvane::HasAlpha(target.type))
            color |= 0xFF000000U;
        korvane::kernels::FillBlock(target.PixelAt(box.x, box.y), target.Stride(), color, box.width,
                                    box.height);
        return;
    }
    // The first pixel tells what the colour is in this format.
    target.Store(box.x, box.y, 1, &color);
    const std::uint16_t packed = *reinterpret_cast<const std::uint16_t*>(target.At(box.x, box.y));
    for (int row = 0; row < box.height; ++row)
        std::fill_n(reinterpret_cast<std::uint16_t*>(target.At(box.x, box.y + row)), box.width, packed);
}

void BlendColor(SurfaceState& target, const PixelBox& box, Pixel color) {
    korvane::DrawTiled(target, box, [color](Pixel* pixels, std::ptrdiff_t stride, const PixelBox& part) {
        korvane::kernels::FillOverBlock(pixels, stride, color, part.width, part.height);
    });
}

}  // namespace

void CLQSurfHandle::FillRect(int left, int top, int right, int bottom, _LQColor& color, bool blend) {
    if (!m_pSurface)
        return;
    SurfaceState& target = m_pSurface->State();
    const PixelBox box = target.Drawable(left, top, right, bottom);
    if (box.width == 0)
        return;
    const Pixel pixel = korvane::Premultiply(color);
    if (blend && color.a != 255)
        BlendColor(target, box, pixel);
    else
        StoreColor(target, box, pixel);
}
