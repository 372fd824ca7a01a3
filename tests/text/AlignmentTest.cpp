#include <gtest/gtest.h>

#include "tests/text/TextCanvas.h"

namespace korvane::test {
namespace {

TEST(TextAlignment, Style0StartsTheTextAtX) {
    const Ink ink = InkOf(DefaultFont(24), L"HH");
    EXPECT_GE(ink.left, 0);
    EXPECT_LE(ink.left, 4);
}

TEST(TextAlignment, Style1EndsTheTextAtX) {
    CLQFont* font = DefaultFont(24);
    TextCanvas ending;
    TextCanvas starting;
    EXPECT_TRUE(ending.Draw(L"Wave FM", font, 300, 5, 1));
    EXPECT_TRUE(starting.Draw(L"Wave FM", font, 300 - Width(font, L"Wave FM"), 5, 0));
    EXPECT_EQ(ending.Pixels(), starting.Pixels());
    EXPECT_FALSE(ending.FindInk().IsEmpty());
    EXPECT_LE(ending.FindInk().right, 300);
}

TEST(TextAlignment, YIsTheTopOfALineAsHighAsTheFont) {
    for (const int size : {11, 15, 16, 22, 30, 48}) {
        CLQFont* font = DefaultFont(size);
        int width = 0;
        int height = 0;
        font->GetStringSize(L"Highly", width, height, false);
        EXPECT_EQ(height, size);
        EXPECT_EQ(width, Width(font, L"Highly"));
        const Ink capitals = InkOf(font, L"FM 87.5 MHz");
        EXPECT_GE(capitals.top, 0) << size;
        EXPECT_LE(capitals.bottom, size) << size;
        const Ink descenders = InkOf(font, L"gpqy");
        EXPECT_LE(descenders.bottom, size + 1) << size;
    }
}

TEST(TextAlignment, MeasuringStringsPutIntegerPointAndFractionSideBySide) {
    for (const int size : {12, 16, 24, 30, 40, 44}) {
        CLQFont* font = DefaultFont(size);
        const int x = 100;
        const int integerEnd = x + Width(font, L"100");
        const int pointEnd = x + Width(font, L"100.");
        const int fractionEnd = x + Width(font, L"100.10");
        TextCanvas columns;
        columns.Draw(L"87", font, integerEnd, 0, 1);
        EXPECT_LE(columns.FindInk().right, integerEnd) << size;
        columns.Draw(L".", font, pointEnd, 0, 1);
        EXPECT_LE(columns.FindInk().right, pointEnd) << size;
        columns.Draw(L"55", font, fractionEnd, 0, 1);
        TextCanvas line;
        line.Draw(L"87.55", font, fractionEnd, 0, 1);
        EXPECT_EQ(columns.Pixels(), line.Pixels()) << size;
    }
}

TEST(TextAlignment, AllDigitsAreEquallyWide) {
    for (int size = 1; size <= 120; ++size) {
        CLQFont* font = DefaultFont(size);
        for (wchar_t digit = L'1'; digit <= L'9'; ++digit) {
            const wchar_t text[] = {digit, 0};
            EXPECT_EQ(Width(font, text), Width(font, L"0")) << size;
        }
    }
}

TEST(TextAlignment, WidthAndHeightOfTheSizeActByThemselves) {
    CLQFont* font = DefaultFont(20);
    const Ink square = InkOf(font, L"Mode");
    font->SetFontSize(40, 20);
    const Ink wide = InkOf(font, L"Mode");
    EXPECT_NEAR(wide.right - wide.left, 2 * (square.right - square.left), 6);
    EXPECT_NEAR(wide.bottom - wide.top, square.bottom - square.top, 1);
}

}  // namespace
}  // namespace korvane::test
