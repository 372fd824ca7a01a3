#include "engine/draw/LqiFormat.h"

#include <cstring>
#include <lz4.h>
#include <lz4hc.h>
#include <zlib.h>

#include "engine/core/LittleEndian.h"
#include "engine/draw/PixelFormat.h"
#include "engine/draw/SurfManager.h"
#include "engine/draw/SurfaceState.h"

namespace korvane {
namespace {

constexpr std::uint8_t kMagic[4] = {'L', 'Q', 'I', 0x1A};
constexpr std::uint8_t kVersion = 1;
constexpr std::size_t kVersionAt = 4;
constexpr std::size_t kTypeAt = 5;
constexpr std::size_t kEncodingAt = 6;
constexpr std::size_t kWidthAt = 8;
constexpr std::size_t kHeightAt = 12;
constexpr std::size_t kPayloadSizeAt = 16;
constexpr std::size_t kChecksumAt = 28;

/// An LZ4 block grows by at most 255 bytes for each of its own.
constexpr std::size_t kLz4GreatestRatio = 255;

static_assert(std::size_t{kMaxSurfacePixels} * 4 + kLqiHeaderSize == kLqiMaxSize);

/// CRC-32 of everything but the checksum's own field, which ends the header.
std::uint32_t Checksum(const std::uint8_t* header, const std::uint8_t* payload, std::size_t payloadSize) {
    const uLong ofHeader = crc32(0, header, kChecksumAt);
    return static_cast<std::uint32_t>(crc32(ofHeader, payload, static_cast<uInt>(payloadSize)));
}

bool IsZero(const std::uint8_t* begin, const std::uint8_t* end) {
    while (begin != end) {
        if (*begin++ != 0)
            return false;
    }
    return true;
}

bool ParseHeader(const std::uint8_t* bytes, LqiHeader& header) {
    if (std::memcmp(bytes, kMagic, sizeof kMagic) != 0 || bytes[kVersionAt] != kVersion)
        return false;
    if (!IsZero(bytes + kEncodingAt + 1, bytes + kWidthAt) ||
        !IsZero(bytes + kPayloadSizeAt + 4, bytes + kChecksumAt))
        return false;
    LqiHeader found;
    found.type = static_cast<_eSurfaceType>(bytes[kTypeAt]);
    if (BytesPerPixel(found.type) == 0 || bytes[kEncodingAt] > static_cast<std::uint8_t>(LqiEncoding::Lz4))
        return false;
    found.encoding = static_cast<LqiEncoding>(bytes[kEncodingAt]);
    const std::uint32_t width = GetLittle32(bytes + kWidthAt);
    const std::uint32_t height = GetLittle32(bytes + kHeightAt);
    if (width < 1 || width > kMaxSurfaceExtent || height < 1 || height > kMaxSurfaceExtent ||
        std::uint64_t{width} * height > kMaxSurfacePixels)
        return false;
    found.width = static_cast<int>(width);
    found.height = static_cast<int>(height);
    found.payloadSize = GetLittle32(bytes + kPayloadSizeAt);
    found.checksum = GetLittle32(bytes + kChecksumAt);
    switch (found.encoding) {
        case LqiEncoding::Raw:
            if (found.payloadSize != found.PixelBytes())
                return false;
            break;
        case LqiEncoding::Lz4:
            if (found.payloadSize >= found.PixelBytes() ||
                (found.PixelBytes() + kLz4GreatestRatio - 1) / kLz4GreatestRatio > found.payloadSize)
                return false;
            break;
    }
    header = found;
    return true;
}

void PutHeader(const SurfaceState& surface, LqiEncoding encoding, std::size_t payloadSize,
               std::uint8_t* file) {
    std::memset(file, 0, kLqiHeaderSize);
    std::memcpy(file, kMagic, sizeof kMagic);
    file[kVersionAt] = kVersion;
    file[kTypeAt] = static_cast<std::uint8_t>(surface.type);
    file[kEncodingAt] = static_cast<std::uint8_t>(encoding);
    PutLittle32(file + kWidthAt, static_cast<std::uint32_t>(surface.width));
    PutLittle32(file + kHeightAt, static_cast<std::uint32_t>(surface.height));
    PutLittle32(file + kPayloadSizeAt, static_cast<std::uint32_t>(payloadSize));
    PutLittle32(file + kChecksumAt, Checksum(file, file + kLqiHeaderSize, payloadSize));
}

}  // namespace

std::size_t LqiHeader::PixelBytes() const {
    return static_cast<std::size_t>(width) * static_cast<std::size_t>(height) *
           static_cast<std::size_t>(BytesPerPixel(type));
}

_eErrorInfo ReadLqiHeader(const std::uint8_t* bytes, std::size_t size, LqiHeader& header) {
    if (bytes == nullptr)
        return eError_InvalidParam;
    if (size < kLqiHeaderSize)
        return eError_BadData;
    LqiHeader found;
    if (!ParseHeader(bytes, found) || found.payloadSize > size - kLqiHeaderSize)
        return eError_BadData;
    header = found;
    return eError_None;
}

_eErrorInfo DecodeLqi(const std::uint8_t* bytes, std::size_t size, LqiImage& image) {
    if (bytes == nullptr)
        return eError_InvalidParam;
    if (size < kLqiHeaderSize)
        return eError_BadData;
    // What has been checked must be what is used, even if the bytes change in between.
    std::uint8_t headerBytes[kLqiHeaderSize];
    std::memcpy(headerBytes, bytes, kLqiHeaderSize);
    LqiImage found;
    const LqiHeader& header = found.header;
    if (!ParseHeader(headerBytes, found.header) || header.payloadSize > size - kLqiHeaderSize)
        return eError_BadData;

    const std::uint8_t* payload = bytes + kLqiHeaderSize;
    if (header.encoding == LqiEncoding::Lz4 &&
        Checksum(headerBytes, payload, header.payloadSize) != header.checksum)
        return eError_BadData;
    if (!found.pixels.Allocate(header.PixelBytes()))
        return eError_Failed;
    switch (header.encoding) {
        case LqiEncoding::Raw:
            std::memcpy(found.pixels.Data(), payload, header.payloadSize);
            if (Checksum(headerBytes, found.pixels.Data(), header.payloadSize) != header.checksum)
                return eError_BadData;
            break;
        case LqiEncoding::Lz4: {
            const int expected = static_cast<int>(header.PixelBytes());
            if (LZ4_decompress_safe(reinterpret_cast<const char*>(payload),
                                    reinterpret_cast<char*>(found.pixels.Data()),
                                    static_cast<int>(header.payloadSize), expected) != expected)
                return eError_BadData;
            break;
        }
    }
    RepairPixels(found.pixels.Data(), static_cast<std::size_t>(header.width) * header.height, header.type);
    image = std::move(found);
    return eError_None;
}

void WriteRawLqi(const SurfaceState& surface, std::uint8_t* bytes) {
    const std::size_t size = surface.pixels.Size();
    std::memcpy(bytes + kLqiHeaderSize, surface.pixels.Data(), size);
    PutHeader(surface, LqiEncoding::Raw, size, bytes);
}

std::vector<std::uint8_t> EncodeLqi(const CLQSurface& surface, LqiEncoding encoding) {
    const SurfaceState& state = surface.State();
    const std::size_t size = state.pixels.Size();
    if (size == 0)
        return {};
    std::vector<std::uint8_t> file(kLqiHeaderSize + size);
    if (encoding == LqiEncoding::Lz4) {
        // Room for one byte less than the raw form: a block that does not fit is not worth having.
        const int packed =
            LZ4_compress_HC(reinterpret_cast<const char*>(state.pixels.Data()),
                            reinterpret_cast<char*>(file.data() + kLqiHeaderSize), static_cast<int>(size),
                            static_cast<int>(size) - 1, LZ4HC_CLEVEL_MAX);
        if (packed > 0) {
            file.resize(kLqiHeaderSize + static_cast<std::size_t>(packed));
            PutHeader(state, LqiEncoding::Lz4, static_cast<std::size_t>(packed), file.data());
            return file;
        }
    }
    WriteRawLqi(state, file.data());
    return file;
}

}  // namespace korvane
