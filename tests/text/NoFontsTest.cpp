#include <gtest/gtest.h>

#include "tests/text/FontFolder.h"
#include "tests/text/TextCanvas.h"

namespace korvane::test {
namespace {

TEST(WithoutFonts, TextIsEmptyBoxes) {
    const FontFolder folder;
    folder.Write("readme.txt", "no font");
    CLQFont* font = DefaultFont(20);
    ASSERT_NE(font, nullptr);
    EXPECT_EQ(CLQFontManager::GetInstance()->GetFont(L"msyh"), font);
    EXPECT_EQ(Width(font, L"AB"), 2 * Width(font, L"8"));
    EXPECT_GT(Width(font, L"A"), 5);
    EXPECT_EQ(PixelsOf(font, L"AB"), PixelsOf(font, L"12"));
    EXPECT_FALSE(InkOf(font, L"A").IsEmpty());
    EXPECT_TRUE(InkOf(font, L" ").IsEmpty());
    for (const int size : {1, 2, 3, 512})
        EXPECT_GT(Width(DefaultFont(size), L"A"), 0);
}

}  // namespace
}  // namespace korvane::test
