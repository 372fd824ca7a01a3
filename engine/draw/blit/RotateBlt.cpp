#include <limits>

#include "engine/draw/Surface.h"
#include "engine/draw/blit/TiledDrawing.h"

using korvane::PixelBox;
using korvane::SurfaceState;
using korvane::kernels::Pixel;

namespace {

/// Value of `mode` that filters.
constexpr int kBilinearMode = 2;

bool IsInt(std::int64_t value) {
    return value >= std::numeric_limits<int>::min() && value <= std::numeric_limits<int>::max();
}

}  // namespace

void CLQSurfHandle::RotateBlt(CLQSurfHandle& source, int x, int y, float scaleX, float scaleY, int pivotX,
                              int pivotY, int angle, int mode) {
    if (!m_pSurface || !source.m_pSurface || source.m_pSurface->GetWidth() == 0)
        return;
    SurfaceState& target = m_pSurface->State();
    SurfaceState& from = source.m_pSurface->State();
    const std::int64_t targetX = std::int64_t{x} - target.originX;
    const std::int64_t targetY = std::int64_t{y} - target.originY;
    // The parts of a tiled drawing count from their own corner.
    if (!IsInt(targetX) || !IsInt(targetY) || !IsInt(targetX - target.width) ||
        !IsInt(targetY - target.height))
        return;
    korvane::kernels::Rotation rotation;
    rotation.source = from.AsArgb(&from == &target);
    rotation.sourceStride = from.width;
    rotation.sourceWidth = from.width;
    rotation.sourceHeight = from.height;
    rotation.pivotX = pivotX;
    rotation.pivotY = pivotY;
    rotation.targetX = static_cast<int>(targetX);
    rotation.targetY = static_cast<int>(targetY);
    rotation.angle = angle;
    rotation.scaleX = scaleX;
    rotation.scaleY = scaleY;
    rotation.filter =
        mode == kBilinearMode ? korvane::kernels::Filter::Bilinear : korvane::kernels::Filter::Nearest;
    const PixelBox all = target.DrawableAll();
    if (rotation.source == nullptr || all.width == 0)
        return;
    const PixelBox box = korvane::kernels::RotatedBounds(all, rotation);
    if (box.width < 1 || box.height < 1)
        return;
    korvane::DrawTiled(target, box, [&rotation](Pixel* pixels, std::ptrdiff_t stride, const PixelBox& part) {
        korvane::kernels::Rotation shifted = rotation;
        shifted.targetX -= part.x;
        shifted.targetY -= part.y;
        korvane::kernels::RotateOver(pixels, stride, PixelBox{0, 0, part.width, part.height}, shifted);
    });
}
