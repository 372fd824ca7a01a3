#include <png.h>

#include "tools/hostfile/HostFile.h"
#include "tools/png/Alpha.h"
#include "tools/png/Png.h"

namespace korvane::png {
namespace {

void OnError(png_structp png, png_const_charp text) {
    *static_cast<std::string*>(png_get_error_ptr(png)) = text;
    png_longjmp(png, 1);
}

void OnWarning(png_structp, png_const_charp) {}

void OnWrite(png_structp png, png_bytep from, std::size_t count) {
    auto& bytes = *static_cast<std::vector<std::uint8_t>*>(png_get_io_ptr(png));
    bytes.insert(bytes.end(), from, from + count);
}

void OnFlush(png_structp) {}

struct Writer {
    explicit Writer(std::string& error)
        : png(png_create_write_struct(PNG_LIBPNG_VER_STRING, &error, OnError, OnWarning)),
          info(png != nullptr ? png_create_info_struct(png) : nullptr) {}
    ~Writer() { png_destroy_write_struct(&png, &info); }
    Writer(const Writer&) = delete;
    Writer& operator=(const Writer&) = delete;

    png_structp png;
    png_infop info;
};

void AppendPixel(std::vector<std::uint8_t>& row, std::uint32_t pixel, bool withAlpha) {
    const std::uint32_t alpha = pixel >> 24;
    for (int shift = 16; shift >= 0; shift -= 8)
        row.push_back(static_cast<std::uint8_t>(Straight((pixel >> shift) & 255U, alpha)));
    if (withAlpha)
        row.push_back(static_cast<std::uint8_t>(alpha));
}

/// Errors jump back to its start: it holds nothing that would need to be freed.
bool WriteRows(const Writer& writer, const Picture& picture, bool withAlpha, std::vector<std::uint8_t>& row,
               std::vector<std::uint8_t>& bytes) {
    const png_structp png = writer.png;
    if (setjmp(png_jmpbuf(png)) != 0)
        return false;
    png_set_write_fn(png, &bytes, OnWrite, OnFlush);
    png_set_IHDR(png, writer.info, static_cast<png_uint_32>(picture.width),
                 static_cast<png_uint_32>(picture.height), 8,
                 withAlpha ? PNG_COLOR_TYPE_RGB_ALPHA : PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_write_info(png, writer.info);
    const std::uint32_t* pixel = picture.pixels.data();
    for (int y = 0; y < picture.height; ++y) {
        row.clear();
        for (int x = 0; x < picture.width; ++x)
            AppendPixel(row, *pixel++, withAlpha);
        png_write_row(png, row.data());
    }
    png_write_end(png, nullptr);
    return true;
}

}  // namespace

bool WritePng(const std::filesystem::path& file, const Picture& picture, std::string& error) {
    if (picture.width < 1 || picture.height < 1 ||
        picture.pixels.size() !=
            static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(picture.height)) {
        error = "there are no pixels to write";
        return false;
    }
    const Writer writer(error);
    if (writer.info == nullptr) {
        error = "there is not enough memory";
        return false;
    }
    std::vector<std::uint8_t> row;
    row.reserve(static_cast<std::size_t>(picture.width) * sizeof(std::uint32_t));
    std::vector<std::uint8_t> bytes;
    return WriteRows(writer, picture, !picture.IsOpaque(), row, bytes) &&
           tools::ReplaceHostFile(file, bytes.data(), bytes.size(), error);
}

}  // namespace korvane::png
