#include <gtest/gtest.h>
#include <string>

#include "tests/support/ReferenceImage.h"
#include "tests/text/TextCanvas.h"

namespace korvane::test {
namespace {

/// A character of the private use area, which no font of the device has.
constexpr wchar_t kMissing[] = L"\uE5E5";

/// How many characters of the text are shown as the empty box.
int CountBoxes(CLQFont* font, const std::wstring& text) {
    const std::vector<std::uint32_t> box = PixelsOf(font, kMissing);
    int count = 0;
    for (const wchar_t character : text) {
        const wchar_t single[] = {character, 0};
        const std::vector<std::uint32_t> pixels = PixelsOf(font, single);
        EXPECT_NE(pixels, std::vector<std::uint32_t>(pixels.size())) << static_cast<unsigned>(character);
        if (pixels == box)
            ++count;
    }
    return count;
}

TEST(Scripts, EachShowsWithItsOwnLetters) {
    const struct {
        const char* language;
        const wchar_t* letters;
    } kScripts[] = {
        {"Polish",
         L"ZA\u017B\u00D3\u0141\u0106G\u0118\u015ALJA\u0179\u0143za\u017C\u00F3\u0142\u0107g\u0119\u015Blja"
         L"\u017A\u0144"},
        {"Greek", L"\u03A1\u03B1\u03B4\u03B9\u03CC\u03C6\u03C9\u03BD\u03BF"},
        {"Cyrillic", L"\u0420\u0430\u0434\u0438\u043E\u0416\u0429\u0457"},
        {"Chinese", L"\u8C03\u9891\u6536\u97F3\u673A\u97F3\u4E50"},
        {"Japanese", L"\u3089\u3058\u304A\u30E9\u30B8\u30AA\u97F3\u697D"},
        {"Arabic", L"\u0645\u0631\u062D\u0628\u0627"},
        {"Hindi", L"\u0930\u0947\u0921\u093F\u092F\u094B"},
        {"Thai", L"\u0E27\u0E34\u0E17\u0E22\u0E38"},
    };
    for (const wchar_t* face : {L"Noto Sans", L"msyh"}) {
        for (const auto& script : kScripts)
            EXPECT_EQ(CountBoxes(NamedFont(face, 24), script.letters), 0) << script.language;
    }
}

TEST(Scripts, WhatNoFontHasIsAnEmptyBox) {
    const Ink box = InkOf(DefaultFont(24), kMissing);
    EXPECT_GT(box.right - box.left, 8);
    EXPECT_GT(box.bottom - box.top, 12);
    EXPECT_EQ(PixelsOf(DefaultFont(24), kMissing), PixelsOf(DefaultFont(24), L"\uE5E6"));
}

TEST(Scripts, ArabicLettersJoin) {
    CLQFont* font = DefaultFont(32);
    int apart = 0;
    for (const wchar_t* letter : {L"\u0645", L"\u0631", L"\u062D", L"\u0628", L"\u0627"})
        apart += Width(font, letter);
    EXPECT_LT(Width(font, L"\u0645\u0631\u062D\u0628\u0627"), apart);
    // Two joined letters have no empty column between them.
    TextCanvas canvas;
    canvas.Draw(L"\u0628\u0628\u0628", font, 20, 4);
    const Ink ink = canvas.FindInk();
    const std::vector<std::uint32_t> pixels = canvas.Pixels();
    for (int x = ink.left; x < ink.right; ++x) {
        bool hasInk = false;
        for (int y = ink.top; y < ink.bottom; ++y)
            hasInk = hasInk || pixels[static_cast<std::size_t>(y * 600 + x)] != 0;
        EXPECT_TRUE(hasInk) << "column " << x;
    }
}

TEST(Scripts, ArabicRunsFromRightToLeft) {
    // With a space between them the letters keep their isolated forms; the second one stands at the left.
    CLQFont* font = DefaultFont(24);
    TextCanvas both;
    both.Draw(L"\u0627 \u0628", font, 20, 4);
    TextCanvas second;
    second.Draw(L"\u0628", font, 20, 4);
    _LQRect left{0, 20 + Width(font, L"\u0628"), 0, 60};
    TextCanvas leftPart;
    leftPart.Draw(L"\u0627 \u0628", font, 20, 4, 0, &left);
    EXPECT_EQ(leftPart.Pixels(), second.Pixels());
    EXPECT_NE(both.Pixels(), second.Pixels());
}

TEST(Scripts, LatinWithinArabicKeepsItsDirection) {
    CLQFont* font = DefaultFont(24);
    // The paragraph runs from right to left: its first word stands at the right, the Latin one at the left.
    TextCanvas mixed;
    _LQRect left{0, 20 + Width(font, L"FM"), 0, 60};
    mixed.Draw(L"\u0628\u0627 FM", font, 20, 4, 0, &left);
    TextCanvas latin;
    latin.Draw(L"FM", font, 20, 4);
    EXPECT_EQ(mixed.Pixels(), latin.Pixels());
}

TEST(Scripts, IndicLettersFormConjunctsAndThaiMarksTakeNoSpace) {
    CLQFont* font = DefaultFont(32);
    EXPECT_LT(Width(font, L"\u0915\u094D\u0937"), Width(font, L"\u0915") + Width(font, L"\u0937"));
    EXPECT_EQ(Width(font, L"\u0E01\u0E48"), Width(font, L"\u0E01"));
}

TEST(Scripts, CombiningAccentsJoinTheirLetter) {
    CLQFont* font = DefaultFont(24);
    EXPECT_EQ(PixelsOf(font, L"e\u0301"), PixelsOf(font, L"\u00E9"));
}

TEST(Scripts, KerningDrawsLettersTogether) {
    CLQFont* font = DefaultFont(48);
    EXPECT_LT(Width(font, L"AVAVAV"), 3 * (Width(font, L"A") + Width(font, L"V")));
}

TEST(Scripts, DirectionMarksAndJoinersAreNotSeen) {
    CLQFont* font = DefaultFont(24);
    EXPECT_EQ(PixelsOf(font, L"\u200EAB\u200B\uFEFF"), PixelsOf(font, L"AB"));
    EXPECT_EQ(Width(font, L"\u200EAB\u200B\uFEFF"), Width(font, L"AB"));
}

TEST(Scripts, ALineOfEach) {
    CLQFont* font = DefaultFont(22);
    TextCanvas canvas(360, 250);
    _LQColor dark{24, 32, 48, 255};
    canvas.Surface().FillRect(0, 0, 360, 250, dark, false);
    const wchar_t* const kLines[] = {
        L"FM 87.50 MHz  Traffic, AVAWA fi",
        L"Za\u017C\u00F3\u0142\u0107 g\u0119\u015Bl\u0105 ja\u017A\u0144",
        L"\u03A1\u03B1\u03B4\u03B9\u03CC\u03C6\u03C9\u03BD\u03BF  "
        L"\u0420\u0430\u0434\u0438\u043E\u0441\u0442\u0430\u043D\u0446\u0438\u044F",
        L"\u8C03\u9891\u6536\u97F3\u673A  \u3089\u3058\u304A\u3092\u8074\u304F",
        L"\u0645\u0631\u062D\u0628\u0627 FM 87.5 \u0628\u0643\u0645",
        L"\u0930\u0947\u0921\u093F\u092F\u094B \u0938\u094D\u091F\u0947\u0936\u0928",
        L"\u0E2A\u0E16\u0E32\u0E19\u0E35\u0E27\u0E34\u0E17\u0E22\u0E38  \u0E17\u0E35\u0E48\u0E19\u0E35\u0E48",
        L"missing: \uE5E5\uE5E6",
    };
    int y = 6;
    for (const wchar_t* line : kLines) {
        canvas.Draw(line, font, 10, y);
        y += 30;
    }
    EXPECT_TRUE(MatchesReference(canvas.Surface(), "text-scripts"));
}

}  // namespace
}  // namespace korvane::test
