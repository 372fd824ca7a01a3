#include <cstring>
#include <functional>
#include <gtest/gtest.h>
#include <vector>

#include "engine/draw/SurfManager.h"
#include "module/ThumbNail.h"
#include "platform/Files.h"
#include "platform/SharedMemory.h"
#include "platform/Simulation.h"
#include "platform/coredll.h"

#include "tests/platform/DeviceFolder.h"
#include "tests/support/InstallService.h"
#include "tests/support/OtherProcess.h"
#include "tests/support/Scene.h"

// A process looks for the service once, so each of these runs in a process of its own.

namespace korvane::test {
namespace {

constexpr int kWidth = 240;
constexpr int kHeight = 144;
constexpr unsigned int kStoredSize = 32 + kWidth * kHeight * 4;

CLQSurfHandle Surface(int width, int height, _eSurfaceType type = eSurface_ARGB8888) {
    return CLQSurfManager::GetInstance()->CreateSurface(width, height, type, true);
}

/// A 32-bit surface with the pixels that `colour` gives.
CLQSurfHandle Painted(int width, int height, const std::function<std::uint32_t(int x, int y)>& colour,
                      _eSurfaceType type = eSurface_ARGB8888) {
    CLQSurfHandle surface = Surface(width, height, type);
    auto* const bytes = static_cast<unsigned char*>(surface.GetSurface()->GetPixels());
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const std::uint32_t pixel = colour(x, y);
            std::memcpy(bytes + y * surface.GetSurface()->GetPitch() + x * 4, &pixel, sizeof(pixel));
        }
    }
    surface.GetSurface()->Touch();
    return surface;
}

/// No two pixels side by side are alike, and some are transparent in part.
std::uint32_t Speckle(int x, int y) {
    if (x == 5 && y == 7)
        return 0x40201008;
    return 0xFF000000U | static_cast<std::uint32_t>(x) << 16 | static_cast<std::uint32_t>(y) << 8 |
           static_cast<std::uint32_t>((x * 7 + y * 13) % 256);
}

std::vector<std::uint32_t> SpecklePixels() {
    std::vector<std::uint32_t> pixels;
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 0; x < kWidth; ++x)
            pixels.push_back(Speckle(x, y));
    }
    return pixels;
}

std::vector<std::uint32_t> Blank() {
    return std::vector<std::uint32_t>(std::size_t{kWidth} * kHeight);
}

std::vector<std::uint32_t> ScaledPixels(CLQSurfHandle source) {
    CLQSurfHandle scaled = Surface(kWidth, kHeight);
    scaled.StretchBlt(source, 0, 0, kWidth, kHeight, 0, 0, source.GetWidth(), source.GetHeight(), 0);
    return PixelsOf(scaled);
}

/// Where the pixels of a 32-bit picture lie for another process.
constexpr wchar_t kPictureFile[] = L"\\picture";

/// Stores the picture that lies there. The words are its width, height and type; the exit status is what
/// SetThumbNail returns.
const Role setPicture("SetPicture", [](const Role::Words& words) {
    const int width = std::stoi(words.at(0));
    const int height = std::stoi(words.at(1));
    std::vector<unsigned char> bytes;
    if (!ReadWholeFile(kPictureFile, std::size_t{1} << 20, bytes))
        return 255;
    const auto pixelAt = [&bytes, width](int x, int y) {
        std::uint32_t pixel = 0;
        std::memcpy(&pixel, bytes.data() + sizeof(pixel) * static_cast<std::size_t>(y * width + x),
                    sizeof(pixel));
        return pixel;
    };
    CLQSurfHandle picture =
        Painted(width, height, pixelAt, static_cast<_eSurfaceType>(std::stoi(words.at(2))));
    return SetThumbNail(picture);
});

const Role setForEver("SetForEver", [](const Role::Words&) {
    CLQSurfHandle red = Painted(kWidth, kHeight, [](int, int) { return 0xFFFF0000U; });
    CLQSurfHandle blue = Painted(kWidth, kHeight, [](int, int) { return 0xFF0000FFU; });
    TellTest("setting");
    while (SetThumbNail(red) == 1 && SetThumbNail(blue) == 1) {
    }
    return 1;
});

/// A device without a service, at first.
class ThumbNail : public testing::Test {
  protected:
    ~ThumbNail() override { RemoveSharedMemory(); }

    std::filesystem::path Folder() const { return std::filesystem::u8path(device.Path()); }

    /// What SetThumbNail returns in another process.
    static int SetElsewhere(CLQSurfHandle picture) {
        const std::vector<std::uint32_t> pixels = PixelsOf(picture);
        EXPECT_TRUE(ReplaceFileAtomically(kPictureFile, pixels.data(), pixels.size() * sizeof(pixels[0])));
        return OtherProcess(setPicture,
                            {std::to_string(picture.GetWidth()), std::to_string(picture.GetHeight()),
                             std::to_string(picture.GetSurfType())})
            .Wait();
    }

    /// Stores the picture in another process and expects to read these pixels in this one.
    static void ExpectExchange(CLQSurfHandle picture, const std::vector<std::uint32_t>& pixels) {
        const std::vector<std::uint32_t> before = PixelsOf(picture);
        CLQSurfHandle out;
        // Whoever has the memory keeps it for the others.
        EXPECT_EQ(GetThumbNail(out), 1);
        EXPECT_EQ(SetElsewhere(picture), 1);
        EXPECT_EQ(GetThumbNail(out), 1);
        EXPECT_EQ(out.GetWidth(), kWidth);
        EXPECT_EQ(out.GetHeight(), kHeight);
        EXPECT_EQ(out.GetSurfType(), eSurface_ARGB8888);
        EXPECT_TRUE(PixelsOf(out) == pixels);
        EXPECT_TRUE(PixelsOf(picture) == before) << "the source stays as it is";
    }

    static void ExpectBlank(CLQSurfHandle out) {
        EXPECT_EQ(out.GetWidth(), kWidth);
        EXPECT_EQ(out.GetHeight(), kHeight);
        EXPECT_EQ(out.GetSurfType(), eSurface_ARGB8888);
        EXPECT_TRUE(PixelsOf(out) == Blank());
    }

    DeviceFolder device;
};

class ThumbNailWithService : public ThumbNail {
  protected:
    ThumbNailWithService() { InstallService(Folder()); }
};

TEST_F(ThumbNailWithService, GoesFromProcessToProcessPixelByPixel) {
    ExpectExchange(Painted(kWidth, kHeight, &Speckle), SpecklePixels());
}

TEST_F(ThumbNailWithService, IsTheLastOneThatWasStored) {
    ExpectExchange(Painted(kWidth, kHeight, &Speckle), SpecklePixels());
    CLQSurfHandle green = Painted(kWidth, kHeight, [](int, int) { return 0xFF00FF00U; });
    EXPECT_EQ(SetThumbNail(green), 1);
    CLQSurfHandle out;
    ASSERT_EQ(GetThumbNail(out), 1);
    EXPECT_TRUE(PixelsOf(out) == PixelsOf(green));
    ExpectExchange(Painted(kWidth, kHeight, [](int, int) { return 0xFF0000FFU; }),
                   std::vector<std::uint32_t>(Blank().size(), 0xFF0000FFU));
}

TEST_F(ThumbNailWithService, IsHalvedFromTwiceTheSize) {
    // Blocks of two by two pixels become the pixels.
    CLQSurfHandle doubled =
        Painted(480, 288, [](int x, int y) { return Speckle(x / 2, y / 2) | 0xFF000000U; });
    std::vector<std::uint32_t> pixels;
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 0; x < kWidth; ++x)
            pixels.push_back(Speckle(x, y) | 0xFF000000U);
    }
    ExpectExchange(doubled, pixels);
}

TEST_F(ThumbNailWithService, IsStretchedFromASquare) {
    CLQSurfHandle square = Painted(100, 100, [](int x, int y) {
        return 0xFF000000U | (x < 50 ? 0xFF0000U : 0U) | (y < 50 ? 0xFFU : 0U);
    });
    const std::vector<std::uint32_t> pixels = ScaledPixels(square);
    ExpectExchange(square, pixels);
    const auto at = [&pixels](int x, int y) { return pixels[static_cast<std::size_t>(y * kWidth + x)]; };
    EXPECT_EQ(at(0, 0), 0xFFFF00FFU);
    EXPECT_EQ(at(115, 68), 0xFFFF00FFU) << "the proportions are not kept";
    EXPECT_EQ(at(239, 0), 0xFF0000FFU);
    EXPECT_EQ(at(0, 143), 0xFFFF0000U);
    EXPECT_EQ(at(124, 76), 0xFF000000U);
    EXPECT_EQ(at(239, 143), 0xFF000000U);
}

TEST_F(ThumbNailWithService, IsScaledFromOtherTypesOfItsSize) {
    CLQSurfHandle opaque = Painted(kWidth, kHeight, &Speckle, eSurface_XRGB8888);
    ExpectExchange(opaque, ScaledPixels(opaque));
    for (const _eSurfaceType type : {eSurface_RGB565, eSurface_ARGB4444}) {
        CLQSurfHandle coarse = Surface(kWidth, kHeight, type);
        _LQColor orange = {255, 128, 0, 255};
        coarse.FillRect(10, 10, 200, 100, orange, false);
        CLQSurfHandle out;
        EXPECT_EQ(SetThumbNail(coarse), 1);
        EXPECT_EQ(GetThumbNail(out), 1);
        EXPECT_TRUE(PixelsOf(out) == ScaledPixels(coarse)) << type;
        EXPECT_EQ(out.GetSurfType(), eSurface_ARGB8888);
    }
}

TEST_F(ThumbNailWithService, IsScaledFromTheSmallestAndTheNarrowestPictures) {
    for (const auto& [width, height] : {std::pair(1, 1), std::pair(1, 8192), std::pair(8192, 1)}) {
        const auto blue = [](int, int) { return 0xFF0000FFU; };
        ExpectExchange(Painted(width, height, blue), std::vector<std::uint32_t>(Blank().size(), 0xFF0000FFU));
    }
}

TEST_F(ThumbNailWithService, OfAnEmptyHandleIsNoneAndLeavesTheStoredOne) {
    CLQSurfHandle picture = Painted(kWidth, kHeight, &Speckle);
    ASSERT_EQ(SetThumbNail(picture), 1);
    CLQSurfHandle empty;
    EXPECT_EQ(SetThumbNail(empty), 0);
    CLQSurfHandle out;
    EXPECT_EQ(GetThumbNail(out), 1);
    EXPECT_TRUE(PixelsOf(out) == PixelsOf(picture));
}

TEST_F(ThumbNailWithService, IsTransparentBeforeAnyWasStored) {
    CLQSurfHandle out = Painted(10, 10, &Speckle);
    EXPECT_EQ(GetThumbNail(out), 1);
    ExpectBlank(out);
}

TEST_F(ThumbNailWithService, LeavesOtherHandlesOfTheReceiversSurfaceAlone) {
    CLQSurfHandle picture = Painted(10, 10, &Speckle);
    CLQSurfHandle out = picture;
    EXPECT_EQ(GetThumbNail(out), 1);
    EXPECT_EQ(picture.GetWidth(), 10);
    EXPECT_NE(out.GetSurface(), picture.GetSurface());
}

TEST_F(ThumbNailWithService, IsReadWhileAnotherProcessStoresOneAfterTheOther) {
    OtherProcess writer(setForEver);
    ASSERT_EQ(writer.Hear(), "setting");
    for (int i = 0; i < 300; ++i) {
        CLQSurfHandle out;
        ASSERT_EQ(GetThumbNail(out), 1);
        ASSERT_EQ(out.GetWidth(), kWidth);
        ASSERT_EQ(out.GetHeight(), kHeight);
    }
    writer.Kill();
}

TEST_F(ThumbNail, WithoutTheServiceIsNotStoredAndReadsAsTransparent) {
    CLQSurfHandle picture = Painted(kWidth, kHeight, &Speckle);
    EXPECT_EQ(SetThumbNail(picture), 0);
    EXPECT_EQ(GetThumbNail(picture), 0);
    ExpectBlank(picture);
}

TEST_F(ThumbNail, LooksForTheServiceAtTheFirstCallOnly) {
    CLQSurfHandle empty;
    EXPECT_EQ(SetThumbNail(empty), 0);
    InstallService(Folder());
    CLQSurfHandle picture = Painted(kWidth, kHeight, &Speckle);
    EXPECT_EQ(SetThumbNail(picture), 0);
    EXPECT_EQ(GetThumbNail(picture), 0);
    ExpectBlank(picture);
}

TEST_F(ThumbNail, OfAnEmptyHandleLooksForTheServiceAllTheSame) {
    InstallService(Folder());
    CLQSurfHandle empty;
    EXPECT_EQ(SetThumbNail(empty), 0);
    // Some systems do not remove a library that is loaded.
    std::error_code ignored;
    std::filesystem::remove_all(Folder() / "NandFlash", ignored);
    CLQSurfHandle picture = Painted(kWidth, kHeight, &Speckle);
    EXPECT_EQ(SetThumbNail(picture), 1) << "it stays loaded";
}

TEST_F(ThumbNail, NeedsTheServicesEntryPoint) {
    InstallService(Folder(), std::filesystem::u8path(KORVANE_TEST_LIBRARY));
    CLQSurfHandle picture = Painted(kWidth, kHeight, &Speckle);
    EXPECT_EQ(SetThumbNail(picture), 0);
    EXPECT_EQ(GetThumbNail(picture), 0);
    ExpectBlank(picture);
}

/// A device with a service that does as it is told, and has nothing but the one entry point.
class ThumbNailFromStub : public ThumbNail {
  protected:
    ThumbNailFromStub() {
        InstallService(Folder(), std::filesystem::u8path(KORVANE_TEST_THUMBNAIL_STUB));
        library = LoadLibraryW(L"\\NandFlash\\Application\\Bin\\LQ_ShareMem.dll");
    }
    ~ThumbNailFromStub() override { FreeLibrary(library); }

    template <class Function>
    Function* Stub(const wchar_t* name) const {
        return reinterpret_cast<Function*>(reinterpret_cast<void (*)()>(GetProcAddressW(library, name)));
    }
    unsigned char* Memory() const { return Stub<unsigned char*()>(L"StubMemory")(); }

    HMODULE library = nullptr;
};

TEST_F(ThumbNailFromStub, IsStoredAsTheEngineStoresSurfaces) {
    CLQSurfHandle picture = Painted(kWidth, kHeight, &Speckle);
    EXPECT_EQ(SetThumbNail(picture), 1) << "an incomplete service will do, and any result but 0";
    EXPECT_EQ(Stub<unsigned int()>(L"StubLastSize")(), kStoredSize);
    EXPECT_EQ(picture.CalcStoreMemSize(), static_cast<int>(kStoredSize));
    std::vector<unsigned char> stored(kStoredSize);
    ASSERT_EQ(picture.SaveSurface(stored.data(), static_cast<int>(stored.size())), eError_None);
    EXPECT_EQ(std::memcmp(Memory(), stored.data(), stored.size()), 0);
    EXPECT_EQ(Memory()[kStoredSize], 0) << "nothing lies behind it";

    CLQSurfHandle out;
    EXPECT_EQ(GetThumbNail(out), 1);
    EXPECT_EQ(Stub<unsigned int()>(L"StubLastSize")(), kStoredSize);
    EXPECT_EQ(Stub<int()>(L"StubCalls")(), 2);
    EXPECT_TRUE(PixelsOf(out) == PixelsOf(picture));
}

TEST_F(ThumbNailFromStub, OfAnEmptyHandleDoesNotAskForTheBuffer) {
    CLQSurfHandle empty;
    EXPECT_EQ(SetThumbNail(empty), 0);
    EXPECT_EQ(Stub<int()>(L"StubCalls")(), 0);
}

TEST_F(ThumbNailFromStub, IsNeitherStoredNorReadWhenTheServiceRefusesTheBuffer) {
    Stub<void()>(L"StubRefuses")();
    CLQSurfHandle picture = Painted(kWidth, kHeight, &Speckle);
    EXPECT_EQ(SetThumbNail(picture), 0);
    EXPECT_EQ(GetThumbNail(picture), 0);
    ExpectBlank(picture);
    EXPECT_EQ(Stub<int()>(L"StubCalls")(), 2);
}

TEST_F(ThumbNailFromStub, IsNotStoredInABufferThatIsNone) {
    Stub<void(unsigned char*)>(L"StubGives")(nullptr);
    CLQSurfHandle picture = Painted(kWidth, kHeight, &Speckle);
    EXPECT_EQ(SetThumbNail(picture), 0);
    EXPECT_EQ(GetThumbNail(picture), 1) << "the result says only that there was a buffer";
    ExpectBlank(picture);
}

TEST_F(ThumbNailFromStub, ThatIsDamagedReadsAsTransparent) {
    CLQSurfHandle picture = Painted(kWidth, kHeight, &Speckle);
    ASSERT_EQ(SetThumbNail(picture), 1);
    for (unsigned int at = 0; at < kStoredSize; at += at < 40 ? 1 : 4999) {
        for (const unsigned char flip : {0x01, 0x80, 0xFF}) {
            Memory()[at] = static_cast<unsigned char>(Memory()[at] ^ flip);
            CLQSurfHandle out;
            EXPECT_EQ(GetThumbNail(out), 1);
            ExpectBlank(out);
            Memory()[at] = static_cast<unsigned char>(Memory()[at] ^ flip);
        }
    }
    CLQSurfHandle out;
    EXPECT_EQ(GetThumbNail(out), 1);
    EXPECT_TRUE(PixelsOf(out) == PixelsOf(picture)) << "the test restored each byte";
}

TEST_F(ThumbNailFromStub, ReadsAnotherImageThatLiesInTheBufferAsItIs) {
    CLQSurfHandle other = Painted(10, 20, &Speckle);
    ASSERT_EQ(other.SaveSurface(Memory(), other.CalcStoreMemSize()), eError_None);
    CLQSurfHandle out;
    EXPECT_EQ(GetThumbNail(out), 1);
    EXPECT_EQ(out.GetWidth(), 10);
    EXPECT_EQ(out.GetHeight(), 20);
    EXPECT_TRUE(PixelsOf(out) == PixelsOf(other));
}

TEST_F(ThumbNailFromStub, ReadsNothingOfAnImageThatIsLargerThanAThumbNail) {
    CLQSurfHandle larger = Painted(241, 145, &Speckle);
    ASSERT_EQ(larger.SaveSurface(Memory(), larger.CalcStoreMemSize()), eError_None);
    CLQSurfHandle out;
    EXPECT_EQ(GetThumbNail(out), 1);
    ExpectBlank(out);
}

}  // namespace
}  // namespace korvane::test
