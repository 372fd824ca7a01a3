#include "engine/draw/PixelFormat.h"

#include <algorithm>

namespace korvane {
namespace {

/// Clamps the three colour components of a pixel to its alpha, the topmost one of `bits` bits.
template <typename Pixel>
Pixel ClampToAlpha(Pixel pixel, int bits) {
    const std::uint32_t mask = (1U << bits) - 1U;
    const std::uint32_t alpha = (static_cast<std::uint32_t>(pixel) >> (3 * bits)) & mask;
    std::uint32_t result = alpha << (3 * bits);
    for (int shift = 0; shift < 3 * bits; shift += bits)
        result |= std::min((static_cast<std::uint32_t>(pixel) >> shift) & mask, alpha) << shift;
    return static_cast<Pixel>(result);
}

}  // namespace

void RepairPixels(void* pixels, std::size_t count, _eSurfaceType type) {
    switch (type) {
        case eSurface_ARGB8888: {
            auto* pixel = static_cast<std::uint32_t*>(pixels);
            for (auto* const end = pixel + count; pixel != end; ++pixel) {
                // Transparent and opaque pixels, by far the most, need no look at their components.
                if (*pixel != 0 && *pixel < 0xFF000000U)
                    *pixel = ClampToAlpha(*pixel, 8);
            }
            break;
        }
        case eSurface_XRGB8888: {
            auto* const pixel = static_cast<std::uint32_t*>(pixels);
            std::for_each(pixel, pixel + count, [](std::uint32_t& value) { value |= 0xFF000000U; });
            break;
        }
        case eSurface_ARGB4444: {
            auto* const pixel = static_cast<std::uint16_t*>(pixels);
            std::for_each(pixel, pixel + count, [](std::uint16_t& value) { value = ClampToAlpha(value, 4); });
            break;
        }
        case eSurface_RGB565:
        case eSurface_None:
            break;
    }
}

}  // namespace korvane
