#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "engine/core/Types.h"
#include "engine/draw/PixelBuffer.h"
#include "platform/Export.h"

class CLQSurface;

/// The container of image files and stored surfaces. docs/file-formats.md describes its bytes.
namespace korvane {

struct SurfaceState;

enum class LqiEncoding : std::uint8_t {
    Raw = 0,  ///< Rows of pixels, top to bottom, without gaps.
    Lz4 = 1,  ///< The same bytes as one LZ4 block.
};

constexpr std::size_t kLqiHeaderSize = 32;
/// No image file is longer than this.
constexpr std::size_t kLqiMaxSize = kLqiHeaderSize + std::size_t{64} * 1024 * 1024;

struct LqiHeader {
    _eSurfaceType type = eSurface_None;
    LqiEncoding encoding = LqiEncoding::Raw;
    int width = 0;
    int height = 0;
    std::size_t payloadSize = 0;
    std::uint32_t checksum = 0;

    /// Size of the pixels once they are decoded.
    std::size_t PixelBytes() const;
};

struct LqiImage {
    LqiHeader header;
    PixelBuffer pixels;
};

/// Reads and checks the header at the start of `size` bytes. On success its values lie within the limits of
/// surfaces, agree with each other, and the payload lies within the buffer. The checksum is not looked at.
/// Bytes behind the payload are of no account. Null gives eError_InvalidParam, anything else that is wrong
/// eError_BadData.
KORVANE_API _eErrorInfo ReadLqiHeader(const std::uint8_t* bytes, std::size_t size, LqiHeader& header);

/// Decodes a whole image. `bytes` may change meanwhile (another process may own them): the result is then a
/// failure or some valid image. Allocates no more than 255 times the payload's size and no more than the
/// largest surface takes. On failure `image` stays as it was.
_eErrorInfo DecodeLqi(const std::uint8_t* bytes, std::size_t size, LqiImage& image);

/// Writes the surface's raw form, kLqiHeaderSize and the pixels' size long, to `bytes`.
void WriteRawLqi(const SurfaceState& surface, std::uint8_t* bytes);

/// The surface as a whole file. Falls back to raw rows where compression does not make it shorter. Empty for
/// a surface without pixels.
KORVANE_API std::vector<std::uint8_t> EncodeLqi(const CLQSurface& surface, LqiEncoding encoding);

}  // namespace korvane
