#include <cstring>
#include <png.h>
#include <utility>

#include "engine/draw/SurfManager.h"

#include "tools/hostfile/HostFile.h"
#include "tools/png/Alpha.h"
#include "tools/png/Png.h"

namespace korvane::png {
namespace {

constexpr std::size_t kSignatureSize = 8;
constexpr std::size_t kLongestFile = std::size_t{256} * 1024 * 1024;

struct Input {
    const std::vector<std::uint8_t>& bytes;
    std::size_t at = 0;
};

void OnError(png_structp png, png_const_charp text) {
    *static_cast<std::string*>(png_get_error_ptr(png)) = text;
    png_longjmp(png, 1);
}

void OnWarning(png_structp, png_const_charp) {}

void OnRead(png_structp png, png_bytep to, std::size_t count) {
    auto& input = *static_cast<Input*>(png_get_io_ptr(png));
    if (count > input.bytes.size() - input.at)
        png_error(png, "ends too early");
    std::memcpy(to, input.bytes.data() + input.at, count);
    input.at += count;
}

struct Reader {
    explicit Reader(std::string& error)
        : png(png_create_read_struct(PNG_LIBPNG_VER_STRING, &error, OnError, OnWarning)),
          info(png != nullptr ? png_create_info_struct(png) : nullptr) {}
    ~Reader() { png_destroy_read_struct(&png, &info, nullptr); }
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

    png_structp png;
    png_infop info;
};

/// Reads rows of red, green, blue and alpha bytes, whatever the file holds. Errors jump back to its start: it
/// holds nothing that would need to be freed.
bool ReadRows(const Reader& reader, Input& input, Picture& picture) {
    const png_structp png = reader.png;
    const png_infop info = reader.info;
    if (setjmp(png_jmpbuf(png)) != 0)
        return false;
    png_set_read_fn(png, &input, OnRead);
    // The library's own limits would call a large picture an invalid one.
    png_set_user_limits(png, PNG_UINT_31_MAX, PNG_UINT_31_MAX);
    png_read_info(png, info);
    const png_uint_32 width = png_get_image_width(png, info);
    const png_uint_32 height = png_get_image_height(png, info);
    static_assert(kMaxSurfaceExtent == 8192);
    if (width > kMaxSurfaceExtent || height > kMaxSurfaceExtent)
        png_error(png, "is wider or higher than 8192 pixels");
    if (std::uint64_t{width} * height > kMaxSurfacePixels)
        png_error(png, "has too many pixels");
    png_set_expand(png);
    png_set_scale_16(png);
    png_set_gray_to_rgb(png);
    png_set_add_alpha(png, 0xFF, PNG_FILLER_AFTER);
    const int passes = png_set_interlace_handling(png);
    png_read_update_info(png, info);
    if (png_get_rowbytes(png, info) != std::size_t{width} * sizeof(std::uint32_t))
        png_error(png, "has a colour type that is not known");
    picture.width = static_cast<int>(width);
    picture.height = static_cast<int>(height);
    picture.pixels.resize(std::size_t{width} * height);
    for (int pass = 0; pass < passes; ++pass) {
        for (png_uint_32 y = 0; y < height; ++y)
            png_read_row(png, reinterpret_cast<png_bytep>(picture.pixels.data() + std::size_t{y} * width),
                         nullptr);
    }
    png_read_end(png, nullptr);
    return true;
}

std::uint32_t PixelFromBytes(std::uint32_t inMemory) {
    std::uint8_t bytes[4];
    std::memcpy(bytes, &inMemory, sizeof bytes);
    const std::uint32_t alpha = bytes[3];
    return alpha << 24 | Premultiplied(bytes[0], alpha) << 16 | Premultiplied(bytes[1], alpha) << 8 |
           Premultiplied(bytes[2], alpha);
}

}  // namespace

bool ReadPng(const std::filesystem::path& file, Picture& picture, std::string& error) {
    std::vector<std::uint8_t> bytes;
    if (!tools::ReadHostFile(file, kLongestFile, bytes, error))
        return false;
    if (bytes.size() < kSignatureSize || png_sig_cmp(bytes.data(), 0, kSignatureSize) != 0) {
        error = "is not a PNG file";
        return false;
    }
    const Reader reader(error);
    if (reader.info == nullptr) {
        error = "there is not enough memory";
        return false;
    }
    Input input{bytes};
    Picture found;
    if (!ReadRows(reader, input, found))
        return false;
    for (std::uint32_t& pixel : found.pixels)
        pixel = PixelFromBytes(pixel);
    picture = std::move(found);
    return true;
}

}  // namespace korvane::png
