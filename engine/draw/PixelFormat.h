#pragma once

#include <cstddef>
#include <cstdint>

#include "engine/core/Types.h"

namespace korvane {

/// 0 for a type that names no pixel format.
constexpr int BytesPerPixel(_eSurfaceType type) {
    switch (type) {
        case eSurface_RGB565:
        case eSurface_ARGB4444:
            return 2;
        case eSurface_XRGB8888:
        case eSurface_ARGB8888:
            return 4;
        case eSurface_None:
            break;
    }
    return 0;
}

constexpr bool HasAlpha(_eSurfaceType type) {
    return type == eSurface_ARGB8888 || type == eSurface_ARGB4444;
}

/// True when the pixels are 32-bit premultiplied ARGB as the kernels take them. XRGB8888 is among them: its
/// unused byte is always 255.
constexpr bool IsKernelFormat(_eSurfaceType type) {
    return type == eSurface_ARGB8888 || type == eSurface_XRGB8888;
}

/// A colour as a premultiplied pixel 0xAARRGGBB; each component c becomes c * alpha / 255, rounded to
/// nearest.
constexpr std::uint32_t Premultiply(const _LQColor& color) {
    const std::uint32_t alpha = color.a;
    const auto scale = [alpha](std::uint32_t component) { return (component * alpha + 127U) / 255U; };
    return (alpha << 24) | (scale(color.r) << 16) | (scale(color.g) << 8) | scale(color.b);
}

/// Makes foreign pixels keep what the formats promise: no colour above its alpha, the unused byte of XRGB8888
/// at 255. `pixels` holds `count` pixels of the type, aligned to their size.
void RepairPixels(void* pixels, std::size_t count, _eSurfaceType type);

}  // namespace korvane
