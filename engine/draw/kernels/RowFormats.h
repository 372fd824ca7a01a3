#pragma once

#include <cstddef>
#include <cstdint>

/// Rows of the other pixel formats to premultiplied ARGB and back. Rows do not overlap. To fewer bits a
/// channel is rounded to the nearest level, to more bits it is spread over the whole of 0..255; so a pixel
/// that was fetched stores as it was.
namespace korvane::kernels {

/// 5 red, 6 green, 5 blue bits; opaque.
void FetchRowRgb565(std::uint32_t* target, const std::uint16_t* source, std::size_t count);
/// Stores the premultiplied channels: the alpha is lost, as over black.
void StoreRowRgb565(std::uint16_t* target, const std::uint32_t* source, std::size_t count);

/// 8 bits each of red, green, blue below 8 bits without meaning; opaque.
void FetchRowXrgb8888(std::uint32_t* target, const std::uint32_t* source, std::size_t count);
/// The meaningless bits are stored as 1.
void StoreRowXrgb8888(std::uint32_t* target, const std::uint32_t* source, std::size_t count);

/// Four bits each of alpha, red, green, blue, premultiplied.
void FetchRowArgb4444(std::uint32_t* target, const std::uint16_t* source, std::size_t count);
void StoreRowArgb4444(std::uint16_t* target, const std::uint32_t* source, std::size_t count);

}  // namespace korvane::kernels
