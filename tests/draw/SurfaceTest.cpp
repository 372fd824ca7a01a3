#include <climits>
#include <gtest/gtest.h>
#include <memory>

#include "tests/draw/Pixels.h"

namespace korvane::test {
namespace {

void ExpectRect(const _LQRect& rect, int left, int right, int top, int bottom) {
    EXPECT_EQ(rect.left, left);
    EXPECT_EQ(rect.right, right);
    EXPECT_EQ(rect.top, top);
    EXPECT_EQ(rect.bottom, bottom);
}

TEST(SurfHandle, IsEmptyAtFirst) {
    CLQSurfHandle handle;
    EXPECT_EQ(handle.GetSurface(), nullptr);
    EXPECT_EQ(handle.GetWidth(), 0);
    EXPECT_EQ(handle.GetHeight(), 0);
    EXPECT_EQ(handle.GetSurfType(), eSurface_None);
    EXPECT_EQ(handle.CalcStoreMemSize(), 0);
}

TEST(SurfHandle, SharesItsSurfaceWithItsCopies) {
    CLQSurfHandle first = MakeSurface(4, 3);
    CLQSurfHandle second(first);
    CLQSurfHandle third;
    third = second;
    EXPECT_EQ(second.GetSurface(), first.GetSurface());
    EXPECT_EQ(third.GetSurface(), first.GetSurface());
    _LQColor red{255, 0, 0, 255};
    third.FillRect(0, 0, 1, 1, red, false);
    EXPECT_EQ(PixelOf(first, 0, 0), 0xFFFF0000U);
}

TEST(SurfHandle, GivesTheSurfaceBackWithTheLastCopy) {
    auto surface = std::make_shared<CLQSurface>();
    const std::weak_ptr<CLQSurface> watch = surface;
    CLQSurfHandle first(std::move(surface));
    CLQSurfHandle second(first);
    first.Release();
    EXPECT_EQ(first.GetSurface(), nullptr);
    EXPECT_FALSE(watch.expired());
    second = CLQSurfHandle();
    EXPECT_TRUE(watch.expired());
    first.Release();
}

TEST(SurfManager, MakesBlankSurfacesOfEveryType) {
    for (const _eSurfaceType type : kSurfaceTypes) {
        CLQSurfHandle surface = MakeSurface(70, 30, type);
        EXPECT_EQ(surface.GetWidth(), 70);
        EXPECT_EQ(surface.GetHeight(), 30);
        EXPECT_EQ(surface.GetSurface()->GetWidth(), 70);
        EXPECT_EQ(surface.GetSurface()->GetHeight(), 30);
        EXPECT_EQ(surface.GetSurfType(), type);
        const bool hasAlpha = type == eSurface_ARGB8888 || type == eSurface_ARGB4444;
        EXPECT_EQ(PixelOf(surface, 69, 29), hasAlpha ? 0U : 0xFF000000U);
        EXPECT_EQ(surface.GetSurface()->IsOpaque(), !hasAlpha);
    }
}

TEST(SurfManager, NumbersItsTypesAsCallersPassThem) {
    EXPECT_EQ(eSurface_ARGB8888, 3);
    EXPECT_EQ(eSurface_ARGB4444, 5);
}

TEST(SurfManager, RefusesSizesAndTypesThatNoSurfaceHas) {
    for (const int wrong : {0, -1, INT_MIN, kMaxSurfaceExtent + 1, INT_MAX}) {
        EXPECT_EQ(MakeSurface(wrong, 10).GetSurface(), nullptr);
        EXPECT_EQ(MakeSurface(10, wrong).GetSurface(), nullptr);
        EXPECT_EQ(MakeSurface(wrong, wrong).GetSurface(), nullptr);
    }
    EXPECT_EQ(MakeSurface(kMaxSurfaceExtent, kMaxSurfaceExtent).GetSurface(), nullptr);
    EXPECT_NE(MakeSurface(kMaxSurfaceExtent, 1).GetSurface(), nullptr);
    for (const int wrong : {0, 4, 6, -1, INT_MAX})
        EXPECT_EQ(MakeSurface(10, 10, static_cast<_eSurfaceType>(wrong)).GetSurface(), nullptr);
}

TEST(Surface, ReportsTheWholeOfItselfAsItsClipUntilOneIsSet) {
    CLQSurfHandle handle = MakeSurface(40, 30);
    CLQSurface& surface = *handle.GetSurface();
    ExpectRect(surface.GetClip(), 0, 40, 0, 30);
    surface.SetOrigin(100, -20);
    ExpectRect(surface.GetClip(), 100, 140, -20, 10);
    const _LQRect clip{110, 300, -500, 5};
    surface.SetClip(&clip);
    ExpectRect(surface.GetClip(), 110, 140, -20, 5);
    surface.SetClip(nullptr);
    ExpectRect(surface.GetClip(), 100, 140, -20, 10);
    int x = 0;
    int y = 0;
    surface.GetOrigin(x, y);
    EXPECT_EQ(x, 100);
    EXPECT_EQ(y, -20);
}

TEST(Surface, DrawsNothingUnderAnEmptyOrTurnedClip) {
    CLQSurfHandle handle = MakeSurface(10, 10);
    _LQColor white{255, 255, 255, 255};
    for (const _LQRect& clip : {_LQRect{3, 3, 0, 10}, _LQRect{8, 2, 0, 10}, _LQRect{0, 10, INT_MAX, INT_MIN},
                                _LQRect{20, 30, 0, 10}, _LQRect{INT_MIN, -1, 0, 10}}) {
        handle.GetSurface()->SetClip(&clip);
        handle.FillRect(0, 0, 10, 10, white, false);
        const _LQRect seen = handle.GetSurface()->GetClip();
        EXPECT_TRUE(seen.left >= seen.right || seen.top >= seen.bottom);
    }
    handle.GetSurface()->SetClip(nullptr);
    EXPECT_EQ(BytesOf(handle), BytesOf(MakeSurface(10, 10)));
}

TEST(Surface, TakesAnyOrigin) {
    std::mt19937 random(1);
    CLQSurfHandle source = MakeRandomSurface(6, 6, eSurface_ARGB8888, random);
    for (const int origin : {INT_MIN, INT_MIN + 3, INT_MAX - 3, INT_MAX}) {
        CLQSurfHandle handle = MakeSurface(10, 10);
        handle.GetSurface()->SetOrigin(origin, origin);
        _LQColor white{255, 255, 255, 255};
        handle.FillRect(INT_MIN, INT_MIN, INT_MAX, INT_MAX, white, true);
        handle.BitBlt(source, INT_MAX, INT_MAX, 5, 5, 0, 0);
        handle.StretchBlt(source, INT_MAX, INT_MIN, 50, 50, 0, 0, 6, 6, 0);
        handle.RotateBlt(source, INT_MIN, INT_MAX, 2.0F, 2.0F, 3, 3, 45, 2);
        const _LQRect clip = handle.GetSurface()->GetClip();
        EXPECT_LE(clip.left, clip.right);
    }
}

TEST(Surface, ForgetsThatItIsOpaqueWhenItIsWrittenTo) {
    CLQSurfHandle opaque = MakeSurface(8, 8);
    _LQColor white{255, 255, 255, 255};
    opaque.FillRect(0, 0, 8, 8, white, false);
    std::vector<unsigned char> stored(static_cast<std::size_t>(opaque.CalcStoreMemSize()));
    ASSERT_EQ(opaque.SaveSurface(stored.data(), static_cast<int>(stored.size())), eError_None);
    const auto load = [&stored](CLQSurfHandle& handle) {
        handle.GetSurface()->CreateSurfaceFromBuffer(stored.data(), L"lqi", static_cast<int>(stored.size()),
                                                     false);
        ASSERT_TRUE(handle.GetSurface()->IsOpaque());
    };
    CLQSurfHandle target = MakeSurface(8, 8);
    CLQSurfHandle image = MakeSurface(1, 1);
    CLQSurfHandle clear = MakeSurface(8, 8);
    _LQColor nothing{0, 0, 0, 0};

    load(image);
    image.FillRect(2, 2, 5, 5, nothing, false);
    EXPECT_FALSE(image.GetSurface()->IsOpaque());
    target.BitBlt(image, 0, 0, 8, 8, 0, 0);
    EXPECT_EQ(PixelOf(target, 3, 3), 0U);
    EXPECT_EQ(PixelOf(target, 1, 1), 0xFFFFFFFFU);

    load(image);
    SetPixel(image, 3, 3, 0);
    EXPECT_FALSE(image.GetSurface()->IsOpaque());
    load(image);
    image.BitBlt(clear, 0, 0, 8, 8, 0, 0);
    EXPECT_FALSE(image.GetSurface()->IsOpaque());
}

TEST(Surface, SetsTheUnusedByteOfXrgbWhenItIsTouched) {
    CLQSurfHandle source = MakeSurface(3, 1, eSurface_XRGB8888);
    auto* const pixels = static_cast<std::uint32_t*>(source.GetSurface()->GetPixels());
    pixels[1] = 0x00123456U;
    source.GetSurface()->Touch();
    CLQSurfHandle target = MakeSurface(3, 1);
    target.BitBlt(source, 0, 0, 3, 1, 0, 0);
    EXPECT_EQ(PixelOf(target, 1, 0), 0xFF123456U);
}

}  // namespace
}  // namespace korvane::test
