#include <gtest/gtest.h>
#include <random>

#include "tests/text/FontFolder.h"
#include "tests/text/TextCanvas.h"

namespace korvane::test {
namespace {

/// Three thousand bytes of the head half the time, where the tables and their lengths stand.
std::string Damaged(std::string font, std::mt19937& random) {
    for (int i = 0; i < 20; ++i) {
        const std::size_t reach = random() % 2 == 0 ? 3000 : font.size();
        font[random() % reach] = static_cast<char>(random());
    }
    if (random() % 4 == 0)
        font.resize(random() % font.size());
    return font;
}

TEST(DamagedFonts, ArePassedOverOrShownAsFarAsTheyGo) {
    const FontFolder folder;
    const std::string thai = FontFolder::DeviceFont("NotoSansThai-Regular.ttf");
    ASSERT_GT(thai.size(), 10000U);
    folder.Write("empty.ttf", "");
    folder.Write("garbage.ttf", std::string(5000, '\x5A'));
    folder.Write("NotoSans-Regular.ttf", thai.substr(0, 700));
    folder.Write("collection.ttc", std::string("ttcf\0\1\0\0\x7F\xFF\xFF\xFF", 12) + thai);
    std::mt19937 random(5);
    constexpr int kVariants = 40;
    for (int i = 0; i < kVariants; ++i)
        folder.Write("variant" + std::to_string(i) + ".ttf", Damaged(thai, random));

    ASSERT_NE(CLQFontManager::GetInstance()->GetDefaultFont(), nullptr);
    EXPECT_EQ(CLQFontManager::GetInstance()->GetFont(L"garbage"),
              CLQFontManager::GetInstance()->GetDefaultFont());
    for (int i = 0; i < kVariants; ++i) {
        CLQFont* font = CLQFontManager::GetInstance()->GetFont((L"variant" + std::to_wstring(i)).c_str());
        for (const int size : {1, 13, 40, 300}) {
            font->SetFontSize(size, size);
            TextCanvas canvas(300, 60);
            EXPECT_TRUE(
                canvas.Draw(L"\u0E2A\u0E16\u0E32\u0E19\u0E35\u0E48 \u0E19\u0E49\u0E33 12.5", font, 5, 5));
            EXPECT_GE(Width(font, L"\u0E2A\u0E16\u0E32\u0E19\u0E35\u0E48"), 0);
        }
    }
}

}  // namespace
}  // namespace korvane::test
