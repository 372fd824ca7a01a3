#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

#include "platform/Simulation.h"

#include "tests/draw/LqiBytes.h"
#include "tests/draw/Pixels.h"

namespace korvane::test {
namespace {

namespace fs = std::filesystem;

/// A device of its own with an empty image folder.
class ImageFile : public ::testing::Test {
  protected:
    void SetUp() override {
        const std::string test = ::testing::UnitTest::GetInstance()->current_test_info()->name();
        root_ = fs::path(::testing::TempDir()) / ("korvane-image-" + test);
        fs::remove_all(root_);
        folder_ = root_ / "NandFlash" / "Application" / "Resource" / "Image";
        fs::create_directories(folder_);
        SetDeviceRoot(root_.string());
    }

    void TearDown() override {
        SetDeviceRoot("");
        fs::remove_all(root_);
    }

    /// An image of one colour.
    static std::vector<std::uint8_t> Image(std::uint8_t gray) {
        LqiFields fields;
        fields.type = eSurface_XRGB8888;
        fields.payload.assign(8, gray);
        return LqiBytes(fields);
    }

    void Write(const std::string& name, const std::vector<std::uint8_t>& bytes) const {
        std::ofstream file(folder_ / name, std::ios::binary | std::ios::trunc);
        file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    }

    static CLQSurfHandle Open(const wchar_t* name, bool share) {
        return CLQSurfManager::GetInstance()->CreateSurface(name, share);
    }

    fs::path root_;
    fs::path folder_;
};

TEST_F(ImageFile, IsSharedByAllHandlesThatNameIt) {
    Write("Needle.lqi", Image(10));
    CLQSurfHandle first = Open(L"Needle.lqi", true);
    ASSERT_NE(first.GetSurface(), nullptr);
    EXPECT_EQ(first.GetWidth(), 2);
    EXPECT_EQ(PixelOf(first, 0, 0), 0xFF0A0A0AU);
    for (const wchar_t* name :
         {L"Needle.lqi", L"needle.LQI", L"\\NandFlash\\Application\\Resource\\Image\\Needle.lqi",
          L"NandFlash/Application/Resource/Image/Needle.lqi",
          L"/nandflash//application\\resource/IMAGE/NEEDLE.lqi",
          L"\\NandFlash\\.\\Application\\Profile\\..\\Resource\\Image\\Needle.lqi"})
        EXPECT_EQ(Open(name, true).GetSurface(), first.GetSurface()) << name;
}

TEST_F(ImageFile, IsLoadedApartWhenItIsNotToBeShared) {
    Write("Tile.lqi", Image(10));
    CLQSurfHandle own = Open(L"Tile.lqi", false);
    CLQSurfHandle shared = Open(L"Tile.lqi", true);
    CLQSurfHandle other = Open(L"Tile.lqi", false);
    EXPECT_NE(own.GetSurface(), shared.GetSurface());
    EXPECT_NE(own.GetSurface(), other.GetSurface());
    SetPixel(own, 0, 0, 0xFFFFFFFFU);
    EXPECT_EQ(PixelOf(shared, 0, 0), 0xFF0A0A0AU);
    EXPECT_EQ(PixelOf(other, 0, 0), 0xFF0A0A0AU);
}

TEST_F(ImageFile, IsReadAgainOnceNoHandleSharesItAnyMore) {
    Write("Face.lqi", Image(10));
    CLQSurfHandle first = Open(L"Face.lqi", true);
    CLQSurfHandle second = first;
    Write("Face.lqi", Image(20));
    EXPECT_EQ(PixelOf(Open(L"Face.lqi", true), 0, 0), 0xFF0A0A0AU);
    first.Release();
    EXPECT_EQ(PixelOf(Open(L"Face.lqi", true), 0, 0), 0xFF0A0A0AU);
    EXPECT_EQ(PixelOf(second, 0, 0), 0xFF0A0A0AU);
    second.Release();
    EXPECT_EQ(PixelOf(Open(L"Face.lqi", true), 0, 0), 0xFF141414U);
}

TEST_F(ImageFile, GivesAnEmptyHandleOnceItIsGone) {
    Write("Face.lqi", Image(10));
    CLQSurfHandle first = Open(L"Face.lqi", true);
    fs::remove(folder_ / "Face.lqi");
    EXPECT_NE(Open(L"Face.lqi", true).GetSurface(), nullptr);
    EXPECT_EQ(Open(L"Face.lqi", false).GetSurface(), nullptr);
    first.Release();
    EXPECT_EQ(Open(L"Face.lqi", true).GetSurface(), nullptr);
}

TEST_F(ImageFile, GivesAnEmptyHandleWhenItIsMissingOrNoFile) {
    for (const bool share : {true, false}) {
        EXPECT_EQ(Open(nullptr, share).GetSurface(), nullptr);
        EXPECT_EQ(Open(L"", share).GetSurface(), nullptr);
        EXPECT_EQ(Open(L"Missing.lqi", share).GetSurface(), nullptr);
        EXPECT_EQ(Open(L"\\", share).GetSurface(), nullptr);
        EXPECT_EQ(Open(L"..\\..\\..\\etc\\passwd", share).GetSurface(), nullptr);
        EXPECT_EQ(Open(L"\\NandFlash\\Application\\Resource\\Image", share).GetSurface(), nullptr);
        EXPECT_EQ(Open(std::wstring(100000, L'x').c_str(), share).GetSurface(), nullptr);
    }
}

TEST_F(ImageFile, GivesAnEmptyHandleWhenItIsDamagedAndLoadsOnceItIsWhole) {
    std::vector<std::uint8_t> image = Image(10);
    Write("Empty.lqi", {});
    EXPECT_EQ(Open(L"Empty.lqi", true).GetSurface(), nullptr);
    Write("Text.lqi", {'h', 'e', 'l', 'l', 'o'});
    EXPECT_EQ(Open(L"Text.lqi", true).GetSurface(), nullptr);
    Write("Face.lqi", {image.begin(), image.end() - 1});
    EXPECT_EQ(Open(L"Face.lqi", true).GetSurface(), nullptr);
    Write("Face.lqi", image);
    EXPECT_NE(Open(L"Face.lqi", true).GetSurface(), nullptr);
}

TEST_F(ImageFile, KnowsWhetherItIsOpaque) {
    LqiFields fields;
    fields.payload = {1, 2, 3, 0xFF, 4, 5, 6, 0xFF};
    Write("Opaque.lqi", LqiBytes(fields));
    EXPECT_TRUE(Open(L"Opaque.lqi", true).GetSurface()->IsOpaque());
    fields.payload.back() = 0xFE;
    Write("Soft.lqi", LqiBytes(fields));
    EXPECT_FALSE(Open(L"Soft.lqi", true).GetSurface()->IsOpaque());
}

/// Runs of transparent, solid and soft pixels, which a loaded image copies each in its own way.
TEST_F(ImageFile, DrawsWhatTheSameSurfaceDrawsBeforeItIsSaved) {
    std::mt19937 random(1);
    CLQSurfHandle drawn = MakeSurface(150, 40);
    for (int y = 0; y < 40; ++y) {
        for (int x = 0; x < 150;) {
            const int end = std::min(150, x + RandomInt(random, 1, 60));
            constexpr std::uint32_t kKinds[] = {0, 0xFF204060U, 0x80402010U};
            const std::uint32_t pixel = kKinds[random() % 3];
            for (; x < end; ++x)
                SetPixel(drawn, x, y, pixel);
        }
    }
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(drawn.CalcStoreMemSize()));
    ASSERT_EQ(drawn.SaveSurface(bytes.data(), static_cast<int>(bytes.size())), eError_None);
    Write("Runs.lqi", bytes);
    CLQSurfHandle loaded = Open(L"Runs.lqi", true);
    ASSERT_NE(loaded.GetSurface(), nullptr);
    for (int round = 0; round < 300; ++round) {
        const _eSurfaceType type = kSurfaceTypes[random() % 4];
        CLQSurfHandle expected = MakeRandomSurface(120, 30, type, random);
        CLQSurfHandle actual = CopyOf(expected);
        const int x = RandomInt(random, -60, 100);
        const int y = RandomInt(random, -30, 30);
        const int width = RandomInt(random, 1, 160);
        const int fromX = RandomInt(random, 0, 100);
        const int fromY = RandomInt(random, 0, 30);
        expected.BitBlt(drawn, x, y, width, 40, fromX, fromY);
        actual.BitBlt(loaded, x, y, width, 40, fromX, fromY);
        ASSERT_EQ(BytesOf(actual), BytesOf(expected));
    }
}

}  // namespace
}  // namespace korvane::test
