#pragma once

#include <cstdint>
#include <random>
#include <vector>

#include "engine/draw/SurfManager.h"

/// What the drawing tests know of pixels, written apart from the engine.
namespace korvane::test {

constexpr _eSurfaceType kSurfaceTypes[] = {eSurface_RGB565, eSurface_XRGB8888, eSurface_ARGB8888,
                                           eSurface_ARGB4444};

CLQSurfHandle MakeSurface(int width, int height, _eSurfaceType type = eSurface_ARGB8888);

/// A surface whose pixels are random, valid for the type, and to a third each transparent, opaque and
/// between.
CLQSurfHandle MakeRandomSurface(int width, int height, _eSurfaceType type, std::mt19937& random);

/// A new surface with the same size, type and pixels.
CLQSurfHandle CopyOf(CLQSurfHandle surface);

/// The bytes of all rows, as the surface stores them.
std::vector<std::uint8_t> BytesOf(CLQSurfHandle surface);

/// One pixel as premultiplied 0xAARRGGBB, and back. Writing tells the surface.
std::uint32_t PixelOf(CLQSurfHandle surface, int x, int y);
void SetPixel(CLQSurfHandle& surface, int x, int y, std::uint32_t argb);

/// What a surface of the type holds after `argb` was stored in it, as premultiplied 0xAARRGGBB.
std::uint32_t AsStored(std::uint32_t argb, _eSurfaceType type);

/// Source over target, both premultiplied.
std::uint32_t Over(std::uint32_t source, std::uint32_t target);

/// A number in [low, high].
int RandomInt(std::mt19937& random, int low, int high);

}  // namespace korvane::test
