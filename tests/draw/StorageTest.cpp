#include <climits>
#include <gtest/gtest.h>

#include "tests/draw/LqiBytes.h"
#include "tests/draw/Pixels.h"

namespace korvane::test {
namespace {

std::vector<std::uint8_t> Save(CLQSurfHandle& surface) {
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(surface.CalcStoreMemSize()));
    EXPECT_EQ(surface.SaveSurface(bytes.data(), static_cast<int>(bytes.size())), eError_None);
    return bytes;
}

TEST(Storage, CountsSuccessAsOne) {
    EXPECT_EQ(eError_None, 1);
}

TEST(Storage, BringsBackSurfacesOfEveryType) {
    std::mt19937 random(1);
    for (const _eSurfaceType type : kSurfaceTypes) {
        for (const auto& [width, height] : {std::pair(1, 1), std::pair(17, 9), std::pair(240, 144)}) {
            CLQSurfHandle saved = MakeRandomSurface(width, height, type, random);
            CLQSurfHandle loaded = MakeSurface(3, 3, eSurface_ARGB8888);
            ASSERT_EQ(Load(loaded, Save(saved)), eError_None);
            EXPECT_EQ(loaded.GetWidth(), width);
            EXPECT_EQ(loaded.GetHeight(), height);
            EXPECT_EQ(loaded.GetSurfType(), type);
            EXPECT_EQ(BytesOf(loaded), BytesOf(saved));
        }
    }
}

TEST(Storage, WritesTheDocumentedBytes) {
    CLQSurfHandle surface = MakeSurface(2, 1);
    SetPixel(surface, 0, 0, 0x80402010U);
    SetPixel(surface, 1, 0, 0xFF112233U);
    const std::vector<std::uint8_t> expected{0x4C, 0x51, 0x49, 0x1A, 0x01, 0x03, 0x00, 0x00, 0x02, 0x00,
                                             0x00, 0x00, 0x01, 0x00, 0x00, 0x00, 0x08, 0x00, 0x00, 0x00,
                                             0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0xD5, 0x4F,
                                             0xFC, 0xB7, 0x10, 0x20, 0x40, 0x80, 0x33, 0x22, 0x11, 0xFF};
    EXPECT_EQ(Save(surface), expected);
}

TEST(Storage, NeedsASizeThatDependsOnSizeAndTypeAlone) {
    std::mt19937 random(2);
    for (const _eSurfaceType type : kSurfaceTypes) {
        const int bytes = type == eSurface_RGB565 || type == eSurface_ARGB4444 ? 2 : 4;
        EXPECT_EQ(MakeSurface(240, 144, type).CalcStoreMemSize(), 32 + 240 * 144 * bytes);
        EXPECT_EQ(MakeRandomSurface(13, 7, type, random).CalcStoreMemSize(), 32 + 13 * 7 * bytes);
    }
}

TEST(Storage, WritesNothingBehindTheStatedSize) {
    std::mt19937 random(3);
    CLQSurfHandle surface = MakeRandomSurface(5, 5, eSurface_ARGB8888, random);
    const int needed = surface.CalcStoreMemSize();
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(needed) + 16, 0xA5);
    ASSERT_EQ(surface.SaveSurface(bytes.data() + 1, needed + 10), eError_None);
    EXPECT_EQ(bytes[0], 0xA5);
    EXPECT_EQ(std::count(bytes.end() - 15, bytes.end(), 0xA5), 15);
    CLQSurfHandle loaded = MakeSurface(1, 1);
    // An odd address, and bytes behind the image.
    EXPECT_EQ(loaded.GetSurface()->CreateSurfaceFromBuffer(bytes.data() + 1, L"lqi", needed + 10, false),
              eError_None);
    EXPECT_EQ(BytesOf(loaded), BytesOf(surface));
}

TEST(Storage, SaysWhyItDoesNotSave) {
    CLQSurfHandle surface = MakeSurface(4, 4);
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(surface.CalcStoreMemSize()), 0xA5);
    const int size = static_cast<int>(bytes.size());
    EXPECT_EQ(surface.SaveSurface(nullptr, size), eError_InvalidParam);
    EXPECT_EQ(surface.SaveSurface(bytes.data(), -1), eError_InvalidParam);
    EXPECT_EQ(surface.SaveSurface(bytes.data(), INT_MIN), eError_InvalidParam);
    EXPECT_EQ(surface.SaveSurface(bytes.data(), 0), eError_BufferTooSmall);
    EXPECT_EQ(surface.SaveSurface(bytes.data(), size - 1), eError_BufferTooSmall);
    EXPECT_EQ(CLQSurfHandle().SaveSurface(bytes.data(), size), eError_Failed);
    EXPECT_EQ(CLQSurfHandle(std::make_shared<CLQSurface>()).SaveSurface(bytes.data(), size), eError_Failed);
    EXPECT_EQ(std::count(bytes.begin(), bytes.end(), 0xA5), size);
}

TEST(Storage, SaysWhyItDoesNotLoadAndKeepsWhatItHad) {
    std::mt19937 random(4);
    CLQSurfHandle surface = MakeRandomSurface(6, 5, eSurface_ARGB4444, random);
    const std::vector<std::uint8_t> before = BytesOf(surface);
    CLQSurfHandle other = MakeSurface(4, 4);
    std::vector<std::uint8_t> bytes = Save(other);
    const int size = static_cast<int>(bytes.size());
    const auto load = [&](unsigned char* buffer, const wchar_t* name, int count) {
        return surface.GetSurface()->CreateSurfaceFromBuffer(buffer, name, count, false);
    };
    EXPECT_EQ(load(nullptr, L"lqi", size), eError_InvalidParam);
    EXPECT_EQ(load(bytes.data(), nullptr, size), eError_InvalidParam);
    EXPECT_EQ(load(bytes.data(), L"", size), eError_InvalidParam);
    EXPECT_EQ(load(bytes.data(), L"png", size), eError_InvalidParam);
    EXPECT_EQ(load(bytes.data(), L"lqi", 0), eError_InvalidParam);
    EXPECT_EQ(load(bytes.data(), L"lqi", -1), eError_InvalidParam);
    EXPECT_EQ(load(bytes.data(), L"lqi", INT_MIN), eError_InvalidParam);
    EXPECT_EQ(load(bytes.data(), L"lqi", size - 1), eError_BadData);
    EXPECT_EQ(surface.GetSurfType(), eSurface_ARGB4444);
    EXPECT_EQ(surface.GetWidth(), 6);
    EXPECT_EQ(BytesOf(surface), before);
}

TEST(Storage, StaysBlankWhenTheBufferHoldsNoPicture) {
    CLQSurfHandle surface = MakeSurface(240, 144);
    const std::vector<std::uint8_t> zeros(static_cast<std::size_t>(surface.CalcStoreMemSize()), 0);
    EXPECT_EQ(Load(surface, zeros), eError_BadData);
    EXPECT_EQ(BytesOf(surface), BytesOf(MakeSurface(240, 144)));
}

}  // namespace
}  // namespace korvane::test
