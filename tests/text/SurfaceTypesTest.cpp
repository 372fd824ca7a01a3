#include <gtest/gtest.h>

#include "engine/draw/SurfManager.h"

#include "tests/text/TextCanvas.h"

namespace korvane::test {
namespace {

/// Text in that colour on a surface of that type, copied to a transparent 32-bit surface.
TextCanvas DrawOn(_eSurfaceType type, _LQColor color, const wchar_t* text) {
    TextCanvas drawn(120, 30, type);
    drawn.SetColor(color);
    EXPECT_TRUE(drawn.Draw(text, DefaultFont(24), 4, 2));
    TextCanvas shown(120, 30);
    shown.Surface().BitBlt(drawn.Surface(), 0, 0, 120, 30, 0, 0);
    return shown;
}

TEST(TextOnSurfaces, FormatsWithAlphaStayTransparentAroundTheText) {
    const Ink expected = DrawOn(eSurface_ARGB8888, {255, 255, 255, 255}, L"FM").FindInk();
    ASSERT_FALSE(expected.IsEmpty());
    const Ink ink = DrawOn(eSurface_ARGB4444, {255, 255, 255, 255}, L"FM").FindInk();
    EXPECT_NEAR(ink.left, expected.left, 1);
    EXPECT_NEAR(ink.right, expected.right, 1);
    EXPECT_NEAR(ink.top, expected.top, 1);
    EXPECT_NEAR(ink.bottom, expected.bottom, 1);
}

TEST(TextOnSurfaces, OpaqueFormatsTakeTheTextsColour) {
    for (const _eSurfaceType type : {eSurface_RGB565, eSurface_XRGB8888}) {
        for (const wchar_t* text : {L"MMM", L"888"}) {
            int redPixels = 0;
            for (const std::uint32_t pixel : DrawOn(type, {255, 0, 0, 255}, text).Pixels()) {
                EXPECT_EQ(pixel >> 24, 255U);
                EXPECT_EQ(pixel & 0xFFFF, 0U);
                if ((pixel >> 16 & 255) > 240)
                    ++redPixels;
            }
            EXPECT_GT(redPixels, 50);
        }
    }
}

TEST(TextOnSurfaces, AlphaOfTheColourCounts) {
    TextCanvas canvas(120, 30);
    canvas.SetColor({255, 255, 255, 128});
    canvas.Draw(L"HIH", DefaultFont(24), 4, 2);
    std::uint32_t strongest = 0;
    for (const std::uint32_t pixel : canvas.Pixels()) {
        EXPECT_EQ(pixel >> 24, pixel & 255);
        strongest = std::max(strongest, pixel >> 24);
    }
    EXPECT_EQ(strongest, 128U);
}

TEST(TextOnSurfaces, ALabelOf30PixelsFitsASurfaceOf30Rows) {
    TextCanvas label(120, 30, eSurface_ARGB8888);
    label.Draw(L"MHz", DefaultFont(30), 0, 0);
    TextCanvas roomy(120, 60, eSurface_ARGB8888);
    roomy.Draw(L"MHz", DefaultFont(30), 0, 0);
    EXPECT_EQ(label.FindInk().bottom, roomy.FindInk().bottom);
    EXPECT_LT(roomy.FindInk().bottom, 30);
    EXPECT_GE(roomy.FindInk().top, 0);
}

}  // namespace
}  // namespace korvane::test
