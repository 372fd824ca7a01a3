#include <climits>
#include <gtest/gtest.h>

#include "tests/text/TextCanvas.h"

namespace korvane::test {
namespace {

CLQFontManager* Manager() {
    return CLQFontManager::GetInstance();
}

TEST(FontManager, GivesTheDefaultFontForNullAndUnknownNames) {
    EXPECT_NE(Manager()->GetDefaultFont(), nullptr);
    EXPECT_EQ(Manager()->GetFont(nullptr), Manager()->GetDefaultFont());
    EXPECT_EQ(Manager()->GetFont(L""), Manager()->GetDefaultFont());
    EXPECT_EQ(Manager()->GetFont(L"No Such Face"), Manager()->GetDefaultFont());
}

TEST(FontManager, GivesOneFontObjectForEachName) {
    CLQFont* msyh = Manager()->GetFont(L"msyh");
    EXPECT_EQ(Manager()->GetFont(L"MSYH"), msyh);
    EXPECT_NE(msyh, Manager()->GetDefaultFont());
    EXPECT_EQ(Manager()->GetFont(L"noto sans"), Manager()->GetFont(L"Noto Sans"));
}

TEST(FontManager, MapsMsyhToAFaceOfItsOwnThatHasChinese) {
    CLQFont* msyh = NamedFont(L"msyh", 24);
    EXPECT_NE(PixelsOf(msyh, L"Agfa"), PixelsOf(DefaultFont(24), L"Agfa"));
    EXPECT_EQ(PixelsOf(msyh, L"\u8C03\u9891"),
              PixelsOf(NamedFont(L"WenQuanYi Micro Hei", 24), L"\u8C03\u9891"));
}

TEST(FontManager, FindsFacesByFamilyStyleAndFileName) {
    const auto bold = PixelsOf(NamedFont(L"Noto Sans Bold", 24), L"Radio");
    EXPECT_NE(bold, PixelsOf(DefaultFont(24), L"Radio"));
    EXPECT_EQ(bold, PixelsOf(NamedFont(L"notosans-bold", 24), L"Radio"));
    EXPECT_EQ(PixelsOf(NamedFont(L"Noto Sans", 24), L"Radio"), PixelsOf(DefaultFont(24), L"Radio"));
}

TEST(FontManager, KeepsASizeForEachFontThatAllItsUsersShare) {
    CLQFont* font = DefaultFont(20);
    NamedFont(L"msyh", 40);
    int width = 0;
    int height = 0;
    font->GetFontSize(width, height);
    EXPECT_EQ(width, 20);
    EXPECT_EQ(height, 20);
    const int before = Width(font, L"Radio");
    Manager()->GetDefaultFont()->SetFontSize(30, 30);
    EXPECT_GT(Width(font, L"Radio"), before);
}

TEST(FontManager, ClampsSizes) {
    CLQFont* font = Manager()->GetDefaultFont();
    int width = 0;
    int height = 0;
    font->SetFontSize(0, INT_MIN);
    font->GetFontSize(width, height);
    EXPECT_EQ(width, 1);
    EXPECT_EQ(height, 1);
    font->SetFontSize(INT_MAX, 513);
    font->GetFontSize(width, height);
    EXPECT_EQ(width, 512);
    EXPECT_EQ(height, 512);
}

TEST(FontManager, ANullTextHasNoWidthAndIsNotDrawn) {
    CLQFont* font = DefaultFont(24);
    int width = -1;
    int height = -1;
    EXPECT_EQ(font->GetStringWidth(nullptr, false), 0);
    font->GetStringSize(nullptr, width, height, false);
    EXPECT_EQ(width, 0);
    EXPECT_EQ(height, 24);
    TextCanvas canvas;
    EXPECT_FALSE(canvas.Draw(nullptr, font, 0, 0));
    EXPECT_FALSE(canvas.Draw(L"Radio", nullptr, 0, 0));
    _LQColor white{255, 255, 255, 255};
    EXPECT_FALSE(CLQSurfHandle().DrawTextW(L"Radio", font, 0, 0, 0, white, nullptr, 0));
}

TEST(FontManager, AnEmptyTextIsDrawnWithoutInk) {
    TextCanvas canvas;
    EXPECT_EQ(Width(DefaultFont(24), L""), 0);
    EXPECT_TRUE(canvas.Draw(L"", DefaultFont(24), 10, 10));
    EXPECT_TRUE(canvas.FindInk().IsEmpty());
}

}  // namespace
}  // namespace korvane::test
