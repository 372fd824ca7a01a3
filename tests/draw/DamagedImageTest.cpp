#include <gtest/gtest.h>

#include "tests/draw/LqiBytes.h"
#include "tests/draw/Pixels.h"

namespace korvane::test {
namespace {

std::vector<std::uint8_t> RawFile() {
    LqiFields fields;
    fields.width = 3;
    fields.height = 4;
    fields.payload.assign(3 * 4 * 4, 0x55);
    return LqiBytes(fields);
}

std::vector<std::uint8_t> PackedFile() {
    LqiFields fields;
    fields.width = 24;
    fields.height = 8;
    fields.encoding = 1;
    std::vector<std::uint8_t> pixels(24 * 8 * 4, 0x55);
    for (std::size_t i = 0; i < pixels.size(); i += 7)
        pixels[i] = static_cast<std::uint8_t>(i / 64);
    fields.payload = Lz4Block(pixels);
    return LqiBytes(fields);
}

class DamagedImage : public ::testing::Test {
  protected:
    /// Fails unless the file is refused and the surface keeps what it had.
    void ExpectRefused(const std::vector<std::uint8_t>& file, const std::string& why) {
        CLQSurface* const pixels = surface_.GetSurface();
        ASSERT_EQ(Load(surface_, file), eError_BadData) << why;
        ASSERT_EQ(surface_.GetSurface(), pixels);
        ASSERT_EQ(surface_.GetSurfType(), eSurface_RGB565) << why;
        ASSERT_EQ(BytesOf(surface_), before_) << why;
    }

    std::mt19937 random_{1};
    CLQSurfHandle surface_ = MakeRandomSurface(5, 5, eSurface_RGB565, random_);
    std::vector<std::uint8_t> before_ = BytesOf(surface_);
};

TEST_F(DamagedImage, StartsFromFilesThatLoad) {
    for (const std::vector<std::uint8_t>& file : {RawFile(), PackedFile()}) {
        CLQSurfHandle surface = MakeSurface(1, 1);
        EXPECT_EQ(Load(surface, file), eError_None);
    }
}

TEST_F(DamagedImage, IsRefusedWhenCutAtAnyLength) {
    for (const std::vector<std::uint8_t>& file : {RawFile(), PackedFile()}) {
        for (std::size_t length = 1; length < file.size(); ++length) {
            const auto end = file.begin() + static_cast<std::ptrdiff_t>(length);
            ExpectRefused({file.begin(), end}, "cut to " + std::to_string(length));
        }
    }
}

TEST_F(DamagedImage, IsRefusedWhenAnyByteIsWrong) {
    for (const std::vector<std::uint8_t>& file : {RawFile(), PackedFile()}) {
        for (std::size_t at = 0; at < file.size(); ++at) {
            for (unsigned change = 1; change < 256; ++change) {
                std::vector<std::uint8_t> damaged = file;
                damaged[at] = static_cast<std::uint8_t>(damaged[at] ^ change);
                ExpectRefused(damaged, "byte " + std::to_string(at) + " xor " + std::to_string(change));
            }
        }
    }
}

TEST_F(DamagedImage, IsRefusedWhenAHeaderByteIsWrongButSigned) {
    for (const std::vector<std::uint8_t>& file : {RawFile(), PackedFile()}) {
        for (std::size_t at = 0; at < 28; ++at) {
            // Any other surface type of 32 bits is as good as this one.
            if (at == 5)
                continue;
            for (unsigned change = 1; change < 256; ++change) {
                std::vector<std::uint8_t> damaged = file;
                damaged[at] = static_cast<std::uint8_t>(damaged[at] ^ change);
                Sign(damaged);
                ExpectRefused(damaged, "byte " + std::to_string(at) + " xor " + std::to_string(change));
            }
        }
    }
}

TEST_F(DamagedImage, IsRefusedWhenItsSizesLie) {
    constexpr std::uint32_t kSizes[] = {0,       1,          2,          8192,       8193,
                                        0x10000, 0x40000000, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF};
    for (const std::uint32_t width : kSizes) {
        for (const std::uint32_t height : kSizes) {
            for (const std::uint8_t encoding : {0, 1}) {
                if (width * height == 2 && encoding == 0)
                    continue;
                LqiFields fields;
                fields.width = width;
                fields.height = height;
                fields.encoding = encoding;
                ExpectRefused(LqiBytes(fields), std::to_string(width) + " by " + std::to_string(height));
            }
        }
    }
    for (const std::int64_t stated : {0LL, 7LL, 9LL, 0x7FFFFFFFLL, 0x80000000LL, 0xFFFFFFFFLL}) {
        LqiFields fields;
        fields.statedSize = stated;
        ExpectRefused(LqiBytes(fields), "stated payload " + std::to_string(stated));
    }
}

TEST_F(DamagedImage, IsRefusedWhenItsBlockDoesNotDecodeToThePixels) {
    const auto file = [](std::size_t decoded) {
        LqiFields fields;
        fields.width = 32;
        fields.height = 32;
        fields.encoding = 1;
        fields.payload = Lz4Block(std::vector<std::uint8_t>(decoded, 7));
        return LqiBytes(fields);
    };
    CLQSurfHandle surface = MakeSurface(1, 1);
    ASSERT_EQ(Load(surface, file(4096)), eError_None);
    ExpectRefused(file(4095), "one byte short");
    ExpectRefused(file(4097), "one byte more");
    ExpectRefused(file(100000), "far more");
    ExpectRefused(file(1), "far less");
}

TEST_F(DamagedImage, IsRefusedWhenItsBlockIsNotShorterThanThePixels) {
    LqiFields fields;
    fields.encoding = 1;
    fields.payload = Lz4Block({1, 2, 3, 4, 5, 6, 7, 255});
    ASSERT_GT(fields.payload.size(), 8U);
    ExpectRefused(LqiBytes(fields), "a block of literals");
}

TEST_F(DamagedImage, IsRefusedWhenItsPayloadIsFarTooShort) {
    LqiFields fields;
    fields.width = 4096;
    fields.height = 4096;
    fields.encoding = 1;
    fields.payload.assign(1000, 0xFF);
    ExpectRefused(LqiBytes(fields), "64 MiB from 1000 bytes");
}

TEST(RepairedImage, LowersColoursToTheirAlpha) {
    LqiFields fields;
    fields.payload = {0xFF, 0x10, 0x80, 0x40, 0x01, 0x02, 0x03, 0x00};
    CLQSurfHandle surface = MakeSurface(1, 1);
    ASSERT_EQ(Load(surface, LqiBytes(fields)), eError_None);
    EXPECT_EQ(PixelOf(surface, 0, 0), 0x40401040U);
    EXPECT_EQ(PixelOf(surface, 1, 0), 0U);

    fields.type = eSurface_ARGB4444;
    fields.payload = {0xF1, 0x48, 0xFF, 0x0F};
    ASSERT_EQ(Load(surface, LqiBytes(fields)), eError_None);
    EXPECT_EQ(PixelOf(surface, 0, 0), 0x44444411U);
    EXPECT_EQ(PixelOf(surface, 1, 0), 0U);

    fields.type = eSurface_XRGB8888;
    fields.payload = {0xFF, 0x10, 0x80, 0x40, 0x01, 0x02, 0x03, 0x00};
    ASSERT_EQ(Load(surface, LqiBytes(fields)), eError_None);
    EXPECT_EQ(PixelOf(surface, 0, 0), 0xFF8010FFU);
    EXPECT_EQ(PixelOf(surface, 1, 0), 0xFF030201U);
}

}  // namespace
}  // namespace korvane::test
