#include "tests/draw/Pixels.h"

#include <algorithm>
#include <cstring>

namespace korvane::test {
namespace {

std::uint32_t Round(std::uint32_t channel, std::uint32_t from, std::uint32_t to) {
    return (channel * to + from / 2) / from;
}

std::uint32_t Channel(std::uint32_t argb, int shift) {
    return (argb >> shift) & 255U;
}

std::uint32_t Pack16(std::uint32_t argb, _eSurfaceType type) {
    if (type == eSurface_RGB565)
        return Round(Channel(argb, 16), 255, 31) << 11 | Round(Channel(argb, 8), 255, 63) << 5 |
               Round(Channel(argb, 0), 255, 31);
    std::uint32_t packed = 0;
    for (int i = 0; i < 4; ++i)
        packed |= Round(Channel(argb, 8 * i), 255, 15) << (4 * i);
    return packed;
}

std::uint32_t Unpack16(std::uint32_t packed, _eSurfaceType type) {
    if (type == eSurface_RGB565) {
        const std::uint32_t red = packed >> 11;
        const std::uint32_t green = (packed >> 5) & 63U;
        const std::uint32_t blue = packed & 31U;
        return 0xFF000000U | (red << 3 | red >> 2) << 16 | (green << 2 | green >> 4) << 8 |
               (blue << 3 | blue >> 2);
    }
    std::uint32_t argb = 0;
    for (int i = 0; i < 4; ++i)
        argb |= ((packed >> (4 * i)) & 15U) * 17U << (8 * i);
    return argb;
}

bool Is16Bit(_eSurfaceType type) {
    return type == eSurface_RGB565 || type == eSurface_ARGB4444;
}

std::uint8_t* AddressOf(CLQSurfHandle surface, int x, int y) {
    auto* const first = static_cast<std::uint8_t*>(surface.GetSurface()->GetPixels());
    return first + y * surface.GetSurface()->GetPitch() + x * (Is16Bit(surface.GetSurfType()) ? 2 : 4);
}

std::uint32_t RandomPixel(std::mt19937& random) {
    const std::uint32_t bits = random();
    switch (bits % 3) {
        case 0:
            return 0;
        case 1:
            return 0xFF000000U | random();
        default:
            break;
    }
    const std::uint32_t alpha = random() % 256U;
    std::uint32_t pixel = alpha << 24;
    for (int shift = 0; shift < 24; shift += 8)
        pixel |= random() % (alpha + 1U) << shift;
    return pixel;
}

}  // namespace

CLQSurfHandle MakeSurface(int width, int height, _eSurfaceType type) {
    return CLQSurfManager::GetInstance()->CreateSurface(width, height, type, true);
}

CLQSurfHandle MakeRandomSurface(int width, int height, _eSurfaceType type, std::mt19937& random) {
    CLQSurfHandle surface = MakeSurface(width, height, type);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            SetPixel(surface, x, y, RandomPixel(random));
    }
    return surface;
}

CLQSurfHandle CopyOf(CLQSurfHandle surface) {
    CLQSurfHandle copy = MakeSurface(surface.GetWidth(), surface.GetHeight(), surface.GetSurfType());
    const std::vector<std::uint8_t> bytes = BytesOf(surface);
    std::copy(bytes.begin(), bytes.end(), AddressOf(copy, 0, 0));
    copy.GetSurface()->Touch();
    return copy;
}

std::vector<std::uint8_t> BytesOf(CLQSurfHandle surface) {
    const std::uint8_t* const first = AddressOf(surface, 0, 0);
    const std::uint8_t* const end = AddressOf(surface, 0, surface.GetHeight());
    return {first, end};
}

std::uint32_t PixelOf(CLQSurfHandle surface, int x, int y) {
    const std::uint8_t* const from = AddressOf(surface, x, y);
    if (Is16Bit(surface.GetSurfType())) {
        std::uint16_t packed = 0;
        std::memcpy(&packed, from, sizeof packed);
        return Unpack16(packed, surface.GetSurfType());
    }
    std::uint32_t argb = 0;
    std::memcpy(&argb, from, sizeof argb);
    return argb;
}

void SetPixel(CLQSurfHandle& surface, int x, int y, std::uint32_t argb) {
    std::uint8_t* const to = AddressOf(surface, x, y);
    if (Is16Bit(surface.GetSurfType())) {
        const auto packed = static_cast<std::uint16_t>(Pack16(argb, surface.GetSurfType()));
        std::memcpy(to, &packed, sizeof packed);
    } else {
        const std::uint32_t pixel = AsStored(argb, surface.GetSurfType());
        std::memcpy(to, &pixel, sizeof pixel);
    }
    // XRGB8888 knows nothing that it could forget, and repairing all of it for each pixel takes long.
    if (surface.GetSurfType() != eSurface_XRGB8888)
        surface.GetSurface()->Touch();
}

std::uint32_t AsStored(std::uint32_t argb, _eSurfaceType type) {
    if (Is16Bit(type))
        return Unpack16(Pack16(argb, type), type);
    return type == eSurface_XRGB8888 ? argb | 0xFF000000U : argb;
}

std::uint32_t Over(std::uint32_t source, std::uint32_t target) {
    std::uint32_t result = 0;
    for (int shift = 0; shift < 32; shift += 8)
        result |= (Channel(source, shift) + Round(Channel(target, shift) * (255U - (source >> 24)), 255, 1))
                  << shift;
    return result;
}

int RandomInt(std::mt19937& random, int low, int high) {
    return low + static_cast<int>(random() % (static_cast<unsigned>(high - low) + 1U));
}

}  // namespace korvane::test
