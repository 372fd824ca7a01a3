#include <png.h>
#include <random>

#include "tests/tools/TemporaryFolder.h"
#include "tools/png/Png.h"

namespace korvane::test {
namespace {

using png::Picture;
using png::ReadPng;
using png::WritePng;

using Png = TemporaryFolder;

Picture RandomPicture(int width, int height, std::uint32_t leastAlpha) {
    std::mt19937 random(1);
    Picture picture;
    picture.width = width;
    picture.height = height;
    for (int i = 0; i < width * height; ++i) {
        const std::uint32_t alpha = leastAlpha + random() % (256U - leastAlpha);
        std::uint32_t pixel = alpha << 24;
        for (int shift = 0; shift < 24; shift += 8)
            pixel |= random() % (alpha + 1U) << shift;
        picture.pixels.push_back(pixel);
    }
    return picture;
}

/// A PNG file as any program may write it.
struct PngFile {
    png_uint_32 width = 1;
    png_uint_32 height = 1;
    int depth = 8;
    int colorType = PNG_COLOR_TYPE_RGB;
    int interlace = PNG_INTERLACE_NONE;
    std::vector<std::vector<png_byte>> rows;
    std::vector<png_color> palette;
    std::vector<png_byte> paletteAlpha;
    int transparentGray = -1;
};

std::vector<std::uint8_t> Encode(PngFile file) {
    std::vector<std::uint8_t> bytes;
    png_structp writer = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png_create_info_struct(writer);
    png_set_write_fn(
        writer, &bytes,
        [](png_structp png, png_bytep from, std::size_t count) {
            auto& to = *static_cast<std::vector<std::uint8_t>*>(png_get_io_ptr(png));
            to.insert(to.end(), from, from + count);
        },
        nullptr);
    png_set_IHDR(writer, info, file.width, file.height, file.depth, file.colorType, file.interlace,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    if (!file.palette.empty())
        png_set_PLTE(writer, info, file.palette.data(), static_cast<int>(file.palette.size()));
    if (!file.paletteAlpha.empty())
        png_set_tRNS(writer, info, file.paletteAlpha.data(), static_cast<int>(file.paletteAlpha.size()),
                     nullptr);
    if (file.transparentGray >= 0) {
        png_color_16 gray{};
        gray.gray = static_cast<png_uint_16>(file.transparentGray);
        png_set_tRNS(writer, info, nullptr, 0, &gray);
    }
    png_write_info(writer, info);
    std::vector<png_bytep> rows;
    for (std::vector<png_byte>& row : file.rows)
        rows.push_back(row.data());
    png_write_image(writer, rows.data());
    png_write_end(writer, info);
    png_destroy_write_struct(&writer, &info);
    return bytes;
}

TEST_F(Png, BringsBackEveryPremultipliedPixelBitForBit) {
    Picture written;
    written.width = 256;
    written.height = 256;
    for (std::uint32_t alpha = 0; alpha < 256; ++alpha) {
        for (std::uint32_t channel = 0; channel < 256; ++channel) {
            const std::uint32_t color = std::min(channel, alpha);
            written.pixels.push_back(alpha << 24 | color << 16 | (alpha - color) << 8 | color / 2);
        }
    }
    std::string error;
    ASSERT_TRUE(WritePng(At("all.png"), written, error)) << error;
    Picture read;
    ASSERT_TRUE(ReadPng(At("all.png"), read, error)) << error;
    EXPECT_EQ(read.width, 256);
    EXPECT_EQ(read.height, 256);
    EXPECT_EQ(read.pixels, written.pixels);
}

TEST_F(Png, WritesOpaquePicturesWithoutAlpha) {
    std::string error;
    ASSERT_TRUE(WritePng(At("opaque.png"), RandomPicture(5, 4, 255), error));
    ASSERT_TRUE(WritePng(At("soft.png"), RandomPicture(5, 4, 0), error));
    constexpr std::size_t kColorTypeAt = 25;
    EXPECT_EQ(Read("opaque.png").at(kColorTypeAt), PNG_COLOR_TYPE_RGB);
    EXPECT_EQ(Read("soft.png").at(kColorTypeAt), PNG_COLOR_TYPE_RGB_ALPHA);
    Picture read;
    ASSERT_TRUE(ReadPng(At("opaque.png"), read, error));
    EXPECT_TRUE(read.IsOpaque());
    EXPECT_EQ(read.pixels, RandomPicture(5, 4, 255).pixels);
}

TEST_F(Png, ReadsEveryColourType) {
    struct Case {
        const char* name;
        PngFile file;
        std::vector<std::uint32_t> pixels;
    };
    std::vector<Case> cases;
    cases.push_back({"1-bit gray", {8, 1, 1, PNG_COLOR_TYPE_GRAY, 0, {{0xA0}}, {}, {}, -1}, {}});
    cases.back().pixels = {0xFFFFFFFF, 0xFF000000, 0xFFFFFFFF, 0xFF000000,
                           0xFF000000, 0xFF000000, 0xFF000000, 0xFF000000};
    cases.push_back(
        {"4-bit gray", {2, 1, 4, PNG_COLOR_TYPE_GRAY, 0, {{0x2F}}, {}, {}, -1}, {0xFF222222, 0xFFFFFFFF}});
    cases.push_back({"16-bit gray",
                     {2, 1, 16, PNG_COLOR_TYPE_GRAY, 0, {{0x12, 0x34, 0x80, 0xFF}}, {}, {}, -1},
                     {0xFF121212, 0xFF808080}});
    cases.push_back({"gray with a transparent level",
                     {2, 1, 8, PNG_COLOR_TYPE_GRAY, 0, {{7, 8}}, {}, {}, 8},
                     {0xFF070707, 0x00000000}});
    cases.push_back(
        {"gray and alpha", {1, 1, 8, PNG_COLOR_TYPE_GRAY_ALPHA, 0, {{200, 128}}, {}, {}, -1}, {0x80646464}});
    cases.push_back(
        {"palette with alpha",
         {2, 1, 8, PNG_COLOR_TYPE_PALETTE, 0, {{1, 0}}, {{255, 0, 0}, {0, 0, 255}}, {255, 51}, -1},
         {0x33000033, 0xFFFF0000}});
    cases.push_back(
        {"16-bit colour and alpha",
         {1, 1, 16, PNG_COLOR_TYPE_RGB_ALPHA, 0, {{0xFF, 0xFF, 0x40, 0x40, 0, 0, 0x80, 0x80}}, {}, {}, -1},
         {0x80802000}});
    for (const Case& sample : cases) {
        Write("sample.png", Encode(sample.file));
        Picture picture;
        std::string error;
        ASSERT_TRUE(ReadPng(At("sample.png"), picture, error)) << sample.name << ": " << error;
        EXPECT_EQ(picture.pixels, sample.pixels) << sample.name;
    }
}

TEST_F(Png, ReadsInterlacedPictures) {
    PngFile file;
    file.width = 13;
    file.height = 11;
    std::vector<std::uint32_t> pixels;
    for (unsigned y = 0; y < 11; ++y) {
        file.rows.emplace_back();
        for (unsigned x = 0; x < 13; ++x) {
            for (const unsigned channel : {x * 10, y * 10, x + y})
                file.rows.back().push_back(static_cast<png_byte>(channel));
            pixels.push_back(0xFF000000U | x * 10 << 16 | y * 10 << 8 | (x + y));
        }
    }
    file.interlace = PNG_INTERLACE_ADAM7;
    Write("interlaced.png", Encode(file));
    Picture picture;
    std::string error;
    ASSERT_TRUE(ReadPng(At("interlaced.png"), picture, error)) << error;
    EXPECT_EQ(picture.pixels, pixels);
}

TEST_F(Png, RefusesAFileCutAtAnyLengthAndKeepsThePicture) {
    std::string error;
    ASSERT_TRUE(WritePng(At("whole.png"), RandomPicture(9, 7, 0), error));
    const std::vector<std::uint8_t> whole = Read("whole.png");
    for (std::size_t length = 0; length < whole.size(); ++length) {
        Write("cut.png", {whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length)});
        Picture picture = RandomPicture(2, 2, 255);
        error.clear();
        ASSERT_FALSE(ReadPng(At("cut.png"), picture, error)) << length;
        EXPECT_FALSE(error.empty());
        EXPECT_EQ(picture.width, 2);
        EXPECT_EQ(picture.pixels.size(), 4U);
    }
}

TEST_F(Png, RefusesPicturesLargerThanSurfaces) {
    PngFile file;
    file.depth = 1;
    file.colorType = PNG_COLOR_TYPE_GRAY;
    file.width = 8193;
    file.rows = {std::vector<png_byte>(8193 / 8 + 1)};
    Write("wide.png", Encode(file));
    Picture picture;
    std::string error;
    EXPECT_FALSE(ReadPng(At("wide.png"), picture, error));
    EXPECT_EQ(error, "is wider or higher than 8192 pixels");

    file.width = 1;
    file.height = 8193;
    file.rows.assign(8193, std::vector<png_byte>(1));
    Write("high.png", Encode(file));
    EXPECT_FALSE(ReadPng(At("high.png"), picture, error));
    EXPECT_EQ(error, "is wider or higher than 8192 pixels");

    file.width = 8192;
    file.height = 8192;
    file.rows.assign(8192, std::vector<png_byte>(1024));
    Write("vast.png", Encode(file));
    EXPECT_FALSE(ReadPng(At("vast.png"), picture, error));
    EXPECT_EQ(error, "has too many pixels");
}

TEST_F(Png, SaysWhatIsWrong) {
    Picture picture;
    std::string error;
    Write("text.png", {'h', 'e', 'l', 'l', 'o', ' ', 'y', 'o', 'u'});
    EXPECT_FALSE(ReadPng(At("text.png"), picture, error));
    EXPECT_EQ(error, "is not a PNG file");
    EXPECT_FALSE(ReadPng(At("."), picture, error));
    EXPECT_EQ(error, "is a folder");
    error.clear();
    EXPECT_FALSE(ReadPng(At("missing.png"), picture, error));
    EXPECT_FALSE(error.empty());
    error.clear();
    EXPECT_FALSE(WritePng(At("no such folder/a.png"), RandomPicture(2, 2, 0), error));
    EXPECT_FALSE(error.empty());
    error.clear();
    EXPECT_FALSE(WritePng(At("none.png"), Picture(), error));
    EXPECT_FALSE(error.empty());
    EXPECT_EQ(Files(), std::vector<std::string>{"text.png"});
}

}  // namespace
}  // namespace korvane::test
