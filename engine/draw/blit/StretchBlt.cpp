#include "engine/draw/Surface.h"
#include "engine/draw/blit/TiledDrawing.h"

using korvane::PixelBox;
using korvane::SurfaceState;
using korvane::kernels::Pixel;

namespace {

bool IsSide(int size) {
    return size >= 1 && size <= korvane::kernels::kLargestSide;
}

bool LiesWithin(int start, int size, int whole) {
    return start >= 0 && size >= 1 && start <= whole && size <= whole - start;
}

}  // namespace

void CLQSurfHandle::StretchBlt(CLQSurfHandle& source, int x, int y, int width, int height, int sourceX,
                               int sourceY, int sourceWidth, int sourceHeight, int /*mode*/) {
    if (!m_pSurface || !source.m_pSurface || !IsSide(width) || !IsSide(height))
        return;
    SurfaceState& from = source.m_pSurface->State();
    if (!LiesWithin(sourceX, sourceWidth, from.width) || !LiesWithin(sourceY, sourceHeight, from.height))
        return;
    if (width == sourceWidth && height == sourceHeight) {
        BitBlt(source, x, y, width, height, sourceX, sourceY);
        return;
    }
    SurfaceState& target = m_pSurface->State();
    const PixelBox box = target.Drawable(x, y, std::int64_t{x} + width, std::int64_t{y} + height);
    if (box.width == 0)
        return;
    const Pixel* const pixels = from.AsArgb(&from == &target);
    if (pixels == nullptr)
        return;
    korvane::kernels::Scaling scaling;
    scaling.source = pixels + static_cast<std::ptrdiff_t>(sourceY) * from.width + sourceX;
    scaling.sourceStride = from.width;
    scaling.sourceWidth = sourceWidth;
    scaling.sourceHeight = sourceHeight;
    scaling.targetWidth = width;
    scaling.targetHeight = height;
    const auto draw = from.IsOpaque() ? korvane::kernels::StretchCopy : korvane::kernels::StretchOver;
    const std::int64_t left = std::int64_t{x} - target.originX;
    const std::int64_t top = std::int64_t{y} - target.originY;
    korvane::DrawTiled(target, box, [&](Pixel* to, std::ptrdiff_t stride, const PixelBox& part) {
        const PixelBox scaled{static_cast<int>(part.x - left), static_cast<int>(part.y - top), part.width,
                              part.height};
        draw(to, stride, scaling, scaled);
    });
}
