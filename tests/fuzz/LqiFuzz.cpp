#include <cstdint>
#include <cstring>
#include <vector>
#include <zlib.h>

#include "engine/draw/SurfManager.h"

#include "tests/fuzz/Require.h"

namespace {

constexpr std::size_t kHeaderSize = 32;
constexpr std::size_t kChecksumAt = 28;

/// Gives the image a right checksum, so that damage reaches beyond the test of it.
void Sign(std::vector<std::uint8_t>& file) {
    std::uint32_t payloadSize = 0;
    std::memcpy(&payloadSize, file.data() + 16, sizeof payloadSize);
    if (payloadSize > file.size() - kHeaderSize)
        return;
    uLong sum = crc32(0, file.data(), kChecksumAt);
    sum = crc32(sum, file.data() + kHeaderSize, payloadSize);
    for (std::size_t i = 0; i < 4; ++i)
        file[kChecksumAt + i] = static_cast<std::uint8_t>(sum >> (8 * i));
}

std::vector<std::uint8_t> PixelsOf(CLQSurface& surface) {
    const auto* const first = static_cast<const std::uint8_t*>(surface.GetPixels());
    return std::vector<std::uint8_t>(first, first + std::ptrdiff_t{surface.GetPitch()} * surface.GetHeight());
}

/// No premultiplied colour lies above its alpha.
bool IsValid(CLQSurfHandle& image) {
    CLQSurfHandle argb = CLQSurfManager::GetInstance()->CreateSurface(image.GetWidth(), image.GetHeight(),
                                                                      eSurface_ARGB8888, true);
    argb.BitBlt(image, 0, 0, image.GetWidth(), image.GetHeight(), 0, 0);
    const std::vector<std::uint8_t> bytes = PixelsOf(*argb.GetSurface());
    for (std::size_t at = 0; at < bytes.size(); at += 4) {
        const std::uint8_t alpha = bytes[at + 3];
        if (bytes[at] > alpha || bytes[at + 1] > alpha || bytes[at + 2] > alpha)
            return false;
    }
    return true;
}

void RequireStoresAndLoadsAgain(CLQSurfHandle& image) {
    std::vector<std::uint8_t> stored(static_cast<std::size_t>(image.CalcStoreMemSize()));
    const int size = static_cast<int>(stored.size());
    Require(image.SaveSurface(stored.data(), size) == eError_None, "what was loaded can be stored");
    CLQSurfHandle again(std::make_shared<CLQSurface>());
    Require(again.GetSurface()->CreateSurfaceFromBuffer(stored.data(), L"lqi", size, false) == eError_None,
            "what was stored can be loaded");
    Require(again.GetSurfType() == image.GetSurfType() && again.GetWidth() == image.GetWidth() &&
                PixelsOf(*again.GetSurface()) == PixelsOf(*image.GetSurface()),
            "storing keeps every pixel");
}

void TryToLoad(std::vector<std::uint8_t>& file) {
    CLQSurfHandle image(std::make_shared<CLQSurface>());
    const _eErrorInfo result = image.GetSurface()->CreateSurfaceFromBuffer(
        file.data(), L"lqi", static_cast<int>(file.size()), false);
    if (result != eError_None) {
        Require(image.GetSurface()->GetPixels() == nullptr && image.GetWidth() == 0,
                "a failed load changes nothing");
        return;
    }
    Require(image.GetWidth() >= 1 && image.GetWidth() <= korvane::kMaxSurfaceExtent, "the width is a width");
    Require(image.GetHeight() >= 1 && image.GetHeight() <= korvane::kMaxSurfacePixels / image.GetWidth(),
            "the size is within its bounds");
    Require(IsValid(image), "pixels are valid");
    RequireStoresAndLoadsAgain(image);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::vector<std::uint8_t> file(data, data + size);
    TryToLoad(file);
    if (file.size() >= kHeaderSize) {
        Sign(file);
        TryToLoad(file);
    }
    return 0;
}
