#include <algorithm>
#include <cstring>

#include "engine/draw/Surface.h"
#include "engine/draw/blit/TiledDrawing.h"

using korvane::PixelBox;
using korvane::SurfaceState;
using korvane::kernels::Pixel;

namespace {

/// A block of source pixels and the place of equal size that it is drawn to.
struct Copy {
    SurfaceState& target;
    PixelBox box;
    const SurfaceState& source;
    int sourceX;
    int sourceY;
    bool isOpaque;
};

bool IsWithinOneSurface(const Copy& copy) {
    return &copy.target == &copy.source;
}

/// Both sides hold pixels as the kernels take them.
void CopyPixels(const Copy& copy) {
    const PixelBox& box = copy.box;
    Pixel* const target = copy.target.PixelAt(box.x, box.y);
    const std::ptrdiff_t targetStride = copy.target.Stride();
    const Pixel* const source = copy.source.PixelAt(copy.sourceX, copy.sourceY);
    const std::ptrdiff_t sourceStride = copy.source.Stride();
    if (copy.isOpaque) {
        korvane::kernels::CopyBlock(target, targetStride, source, sourceStride, box.width, box.height);
    } else if (copy.source.runsKnown) {
        korvane::kernels::OverRuns(target, targetStride, copy.source.PixelAt(0, 0), sourceStride,
                                   copy.source.runs, copy.sourceX, copy.sourceY, box.width, box.height);
    } else {
        korvane::kernels::OverBlock(target, targetStride, source, sourceStride, box.width, box.height);
    }
}

/// Draws `count` pixels, at most kTileWidth, that lie `done` pixels into row `row` of the block.
void CopyTile(const Copy& copy, int row, int done, int count) {
    const int x = copy.box.x + done;
    const int y = copy.box.y + row;
    Pixel tile[korvane::kTileWidth];
    copy.source.Fetch(copy.sourceX + done, copy.sourceY + row, count, tile);
    if (copy.isOpaque) {
        copy.target.Store(x, y, count, tile);
        return;
    }
    korvane::DrawTiled(copy.target, PixelBox{x, y, count, 1},
                       [&tile](Pixel* pixels, std::ptrdiff_t stride, const PixelBox& part) {
                           korvane::kernels::OverBlock(pixels, stride, tile, part.width, part.width, 1);
                       });
}

/// Any formats. Within one surface it begins at the end towards which the block moves, so that no source
/// pixel is overwritten before it has been read.
void CopyTiles(const Copy& copy) {
    const PixelBox& box = copy.box;
    const bool fromBottom = IsWithinOneSurface(copy) && box.y > copy.sourceY;
    const bool fromRight = IsWithinOneSurface(copy) && box.x > copy.sourceX;
    for (int i = 0; i < box.height; ++i) {
        const int row = fromBottom ? box.height - 1 - i : i;
        for (int passed = 0; passed < box.width; passed += korvane::kTileWidth) {
            const int count = std::min(box.width - passed, korvane::kTileWidth);
            CopyTile(copy, row, fromRight ? box.width - passed - count : passed, count);
        }
    }
}

/// Opaque pixels of one format other than the kernels'.
void CopyBytes(const Copy& copy) {
    const std::size_t length = static_cast<std::size_t>(copy.box.width) *
                               static_cast<std::size_t>(korvane::BytesPerPixel(copy.target.type));
    for (int row = 0; row < copy.box.height; ++row) {
        std::memcpy(copy.target.At(copy.box.x, copy.box.y + row),
                    copy.source.At(copy.sourceX, copy.sourceY + row), length);
    }
}

}  // namespace

void CLQSurfHandle::BitBlt(CLQSurfHandle& source, int x, int y, int width, int height, int sourceX,
                           int sourceY) {
    if (!m_pSurface || !source.m_pSurface || width < 1 || height < 1)
        return;
    SurfaceState& target = m_pSurface->State();
    const SurfaceState& from = source.m_pSurface->State();
    // Where the source's corner would come to lie on the screen.
    const std::int64_t cornerX = std::int64_t{x} - sourceX;
    const std::int64_t cornerY = std::int64_t{y} - sourceY;
    const PixelBox box =
        target.Drawable(std::max<std::int64_t>(x, cornerX), std::max<std::int64_t>(y, cornerY),
                        std::min(std::int64_t{x} + width, cornerX + from.width),
                        std::min(std::int64_t{y} + height, cornerY + from.height));
    if (box.width == 0)
        return;
    const Copy copy{target,
                    box,
                    from,
                    static_cast<int>(box.x + target.originX - cornerX),
                    static_cast<int>(box.y + target.originY - cornerY),
                    from.IsOpaque()};
    target.ForgetPixels();
    const bool areKernelFormats = korvane::IsKernelFormat(target.type) && korvane::IsKernelFormat(from.type);
    if (areKernelFormats && (copy.isOpaque || !IsWithinOneSurface(copy)))
        CopyPixels(copy);
    else if (copy.isOpaque && target.type == from.type && !IsWithinOneSurface(copy))
        CopyBytes(copy);
    else
        CopyTiles(copy);
}
