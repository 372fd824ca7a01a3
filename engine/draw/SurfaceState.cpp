#include "engine/draw/SurfaceState.h"

#include <algorithm>
#include <utility>

#include "engine/draw/LqiFormat.h"
#include "engine/draw/PixelFormat.h"
#include "engine/draw/SurfManager.h"
#include "engine/draw/kernels/RowFormats.h"

namespace korvane {
namespace {

struct Span {
    std::int64_t begin;
    std::int64_t end;

    void Narrow(std::int64_t low, std::int64_t high) {
        begin = std::max(begin, low);
        end = std::min(end, high);
    }
};

}  // namespace

bool SurfaceState::Allocate(int newWidth, int newHeight, _eSurfaceType newType) {
    const int bytesPerPixel = BytesPerPixel(newType);
    if (bytesPerPixel == 0 || newWidth < 1 || newWidth > kMaxSurfaceExtent || newHeight < 1 ||
        newHeight > kMaxSurfaceExtent || newWidth > kMaxSurfacePixels / newHeight)
        return false;
    const std::size_t count = static_cast<std::size_t>(newWidth) * static_cast<std::size_t>(newHeight);
    if (!pixels.Allocate(count * static_cast<std::size_t>(bytesPerPixel)))
        return false;
    if (newType == eSurface_XRGB8888)
        RepairPixels(pixels.Data(), count, newType);
    ForgetPixels();
    width = newWidth;
    height = newHeight;
    pitch = static_cast<std::ptrdiff_t>(newWidth) * bytesPerPixel;
    type = newType;
    return true;
}

void SurfaceState::Adopt(LqiImage&& image) {
    ForgetPixels();
    pixels = std::move(image.pixels);
    width = image.header.width;
    height = image.header.height;
    type = image.header.type;
    pitch = static_cast<std::ptrdiff_t>(width) * BytesPerPixel(type);
    if (type == eSurface_ARGB8888) {
        runs = kernels::BuildRuns(PixelAt(0, 0), Stride(), width, height);
        runsKnown = true;
    }
}

bool SurfaceState::IsOpaque() const {
    if (type == eSurface_None)
        return false;
    return !HasAlpha(type) || (runsKnown && runs.coverage == kernels::Coverage::Solid);
}

PixelBox SurfaceState::Drawable(std::int64_t left, std::int64_t top, std::int64_t right, std::int64_t bottom,
                                const _LQRect* bounds) const {
    Span x{left, right};
    Span y{top, bottom};
    x.Narrow(originX, std::int64_t{originX} + width);
    y.Narrow(originY, std::int64_t{originY} + height);
    if (hasClip) {
        x.Narrow(clip.left, clip.right);
        y.Narrow(clip.top, clip.bottom);
    }
    if (bounds != nullptr) {
        x.Narrow(bounds->left, bounds->right);
        y.Narrow(bounds->top, bounds->bottom);
    }
    if (x.begin >= x.end || y.begin >= y.end)
        return PixelBox{};
    return PixelBox{static_cast<int>(x.begin - originX), static_cast<int>(y.begin - originY),
                    static_cast<int>(x.end - x.begin), static_cast<int>(y.end - y.begin)};
}

PixelBox SurfaceState::DrawableAll() const {
    return Drawable(originX, originY, std::int64_t{originX} + width, std::int64_t{originY} + height);
}

std::uint8_t* SurfaceState::At(int x, int y) {
    return pixels.Data() + y * pitch + static_cast<std::ptrdiff_t>(x) * BytesPerPixel(type);
}

const std::uint8_t* SurfaceState::At(int x, int y) const {
    return pixels.Data() + y * pitch + static_cast<std::ptrdiff_t>(x) * BytesPerPixel(type);
}

void SurfaceState::Fetch(int x, int y, int count, kernels::Pixel* argb) const {
    const std::uint8_t* row = At(x, y);
    const auto length = static_cast<std::size_t>(count);
    switch (type) {
        case eSurface_RGB565:
            kernels::FetchRowRgb565(argb, reinterpret_cast<const std::uint16_t*>(row), length);
            break;
        case eSurface_ARGB4444:
            kernels::FetchRowArgb4444(argb, reinterpret_cast<const std::uint16_t*>(row), length);
            break;
        case eSurface_XRGB8888:
        case eSurface_ARGB8888:
            std::copy_n(PixelAt(x, y), length, argb);
            break;
        case eSurface_None:
            break;
    }
}

void SurfaceState::Store(int x, int y, int count, const kernels::Pixel* argb) {
    std::uint8_t* row = At(x, y);
    const auto length = static_cast<std::size_t>(count);
    switch (type) {
        case eSurface_RGB565:
            kernels::StoreRowRgb565(reinterpret_cast<std::uint16_t*>(row), argb, length);
            break;
        case eSurface_ARGB4444:
            kernels::StoreRowArgb4444(reinterpret_cast<std::uint16_t*>(row), argb, length);
            break;
        case eSurface_XRGB8888:
            kernels::StoreRowXrgb8888(PixelAt(x, y), argb, length);
            break;
        case eSurface_ARGB8888:
            std::copy_n(argb, length, PixelAt(x, y));
            break;
        case eSurface_None:
            break;
    }
}

const kernels::Pixel* SurfaceState::AsArgb(bool separate) {
    if (!separate && IsKernelFormat(type))
        return PixelAt(0, 0);
    const std::size_t size =
        static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * sizeof(kernels::Pixel);
    if (argb_.Size() != size && !argb_.Allocate(size))
        return nullptr;
    auto* const copy = reinterpret_cast<kernels::Pixel*>(argb_.Data());
    if (!argbValid_) {
        for (int y = 0; y < height; ++y)
            Fetch(0, y, width, copy + static_cast<std::ptrdiff_t>(y) * width);
        argbValid_ = true;
    }
    return copy;
}

}  // namespace korvane
