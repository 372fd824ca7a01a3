#include <gtest/gtest.h>
#include <random>
#include <string>

#include "tests/text/TextCanvas.h"

namespace korvane::test {
namespace {

TEST(HardText, OnlyTheFirst4096CharactersCount) {
    CLQFont* font = DefaultFont(16);
    const std::wstring longest(4096, L'W');
    const std::wstring longer(200000, L'W');
    EXPECT_EQ(Width(font, longer.c_str()), Width(font, longest.c_str()));
    TextCanvas canvas;
    EXPECT_TRUE(canvas.Draw(longer.c_str(), font, -3000, 0));
    EXPECT_FALSE(canvas.FindInk().IsEmpty());
}

TEST(HardText, ControlCharactersAndLineBreaksAreSpaces) {
    CLQFont* font = DefaultFont(20);
    EXPECT_EQ(PixelsOf(font, L"A\nB\tC\x7F"), PixelsOf(font, L"A B C "));
    EXPECT_EQ(Width(font, L"A\nB\r\x01"), Width(font, L"A B  "));
}

TEST(HardText, WhatIsNoCharacterIsTheReplacementCharacter) {
    CLQFont* font = DefaultFont(20);
    const wchar_t loneSurrogate[] = {L'A', static_cast<wchar_t>(0xD800), L'B', 0};
    EXPECT_EQ(PixelsOf(font, loneSurrogate), PixelsOf(font, L"A\uFFFDB"));
}

TEST(HardText, ASurrogatePairIsOneCharacter) {
    CLQFont* font = DefaultFont(20);
    const wchar_t pair[] = {static_cast<wchar_t>(0xD83D), static_cast<wchar_t>(0xDE00), 0};
    EXPECT_EQ(Width(font, pair), Width(font, L"\U0001F600"));
    EXPECT_EQ(PixelsOf(font, pair), PixelsOf(font, L"\U0001F600"));
}

TEST(HardText, GarbageIsSafeInEverySize) {
    std::mt19937 random(11);
    const unsigned limits[] = {0x80, 0x800, 0x3000, 0x10000, 0x110000, 0xFFFFFFFF};
    for (int i = 0; i < 300; ++i) {
        std::wstring text;
        const unsigned limit = limits[random() % std::size(limits)];
        for (unsigned length = random() % 40; length > 0; --length) {
            const auto character = static_cast<wchar_t>(1 + random() % limit);
            text += character == 0 ? L'x' : character;
        }
        CLQFont* font = DefaultFont(1);
        font->SetFontSize(static_cast<int>(1 + random() % (i % 10 == 0 ? 512 : 60)),
                          static_cast<int>(1 + random() % (i % 10 == 0 ? 512 : 60)));
        TextCanvas canvas(300, 80);
        EXPECT_TRUE(canvas.Draw(text.c_str(), font, static_cast<int>(random() % 300) - 50, 0,
                                static_cast<int>(random() % 2)));
        EXPECT_GE(Width(font, text.c_str()), 0);
    }
}

TEST(HardText, PilesOfAccentsAndNestedDirectionsAreSafe) {
    std::wstring accents = L"a";
    accents.append(4000, static_cast<wchar_t>(0x0301));
    std::wstring nested;
    for (int i = 0; i < 300; ++i)
        nested += L"\u202E\u2067\u0628a";
    for (const std::wstring& text : {accents, nested}) {
        TextCanvas canvas;
        EXPECT_TRUE(canvas.Draw(text.c_str(), DefaultFont(20), 20, 20));
        EXPECT_FALSE(canvas.FindInk().IsEmpty());
    }
}

TEST(HardText, ManyLinesAndSizesLeaveTheDrawingRight) {
    const std::vector<std::uint32_t> before = PixelsOf(DefaultFont(20), L"Traffic program");
    for (int size = 8; size < 80; ++size) {
        for (int i = 0; i < 40; ++i)
            PixelsOf(DefaultFont(size), (L"Station " + std::to_wstring(i) + L" \u0142\u8C03").c_str());
    }
    EXPECT_EQ(PixelsOf(DefaultFont(20), L"Traffic program"), before);
}

TEST(HardText, AnInvisibleColourDrawsNothing) {
    TextCanvas canvas;
    canvas.SetColor({255, 255, 255, 0});
    EXPECT_TRUE(canvas.Draw(L"Radio", DefaultFont(24), 10, 10));
    EXPECT_TRUE(canvas.FindInk().IsEmpty());
}

}  // namespace
}  // namespace korvane::test
