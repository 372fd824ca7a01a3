#include <gtest/gtest.h>
#include <random>
#include <string>

#include "tests/text/TextCanvas.h"

namespace korvane::test {
namespace {

/// A character without width or ink that makes the text take the road of all other texts.
constexpr wchar_t kInvisible = 0x200B;

TEST(NumberText, LooksAsTheSameDigitsWithinOtherText) {
    constexpr wchar_t kCharacters[] = L"0123456789 .,:+-/%";
    std::mt19937 random(3);
    for (const wchar_t* face : {L"Noto Sans", L"Noto Sans Bold", L"msyh"}) {
        for (int i = 0; i < 300; ++i) {
            std::wstring number;
            for (unsigned length = 1 + random() % 20; length > 0; --length)
                number += kCharacters[random() % (std::size(kCharacters) - 1)];
            CLQFont* font = NamedFont(face, static_cast<int>(8 + random() % 30));
            const std::wstring text = kInvisible + number;
            ASSERT_EQ(Width(font, number.c_str()), Width(font, text.c_str()));
            ASSERT_EQ(PixelsOf(font, number.c_str()), PixelsOf(font, text.c_str()));
        }
    }
}

TEST(NumberText, ManySizesInTurnKeepTheirWidths) {
    std::vector<int> widths;
    for (int round = 0; round < 2; ++round) {
        for (int size = 10; size < 60; ++size) {
            const int width = Width(DefaultFont(size), L"108.00");
            if (round == 0)
                widths.push_back(width);
            else
                EXPECT_EQ(width, widths[static_cast<std::size_t>(size - 10)]) << size;
        }
    }
}

TEST(NumberText, MayBeLong) {
    const std::wstring digits(5000, L'8');
    CLQFont* font = DefaultFont(20);
    EXPECT_EQ(Width(font, digits.c_str()), 4096 * Width(font, L"8"));
}

}  // namespace
}  // namespace korvane::test
