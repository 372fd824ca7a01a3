#include <gtest/gtest.h>

#include "engine/system/DateTime.h"
#include "engine/text/LangManager.h"

#include "tests/system/ScratchDevice.h"

namespace {

using namespace std::string_literals;

class LanguageTable : public testing::Test {
  protected:
    bool Load(const std::string& bytes) {
        device_.Write("table.lng", bytes);
        return language_.LoadLanguage(L"\\table.lng");
    }
    bool LoadTexts(const std::string& lines) { return Load("[language]\nname = Test\n[text]\n" + lines); }

    ScratchDevice device_;
    CLQLangManager& language_ = *CLQLangManager::GetInstance();
};

}  // namespace

TEST_F(LanguageTable, MayHoldNothingButItsName) {
    ASSERT_TRUE(Load("[language]\nname=x"));
    EXPECT_EQ(language_.GetString(1), L"");
    EXPECT_EQ(language_.GetString(L"settings_shortcut_menu_tuner"), L"settings_shortcut_menu_tuner");
    EXPECT_EQ(language_.GetMorning(), L"AM");
    EXPECT_EQ(language_.GetAfternoon(), L"PM");
}

TEST_F(LanguageTable, GivesTextsByIdAndByKey) {
    ASSERT_TRUE(LoadTexts("12 settings_shortcut_menu_tuner = Radio\n13 = Disc\nmenu.usb = USB\n"));
    EXPECT_EQ(language_.GetString(12), L"Radio");
    EXPECT_EQ(language_.GetString(L"settings_shortcut_menu_tuner"), L"Radio");
    EXPECT_EQ(language_.GetString(L"Settings_Shortcut_Menu_Tuner"), L"Radio");
    EXPECT_EQ(language_.GetString(13), L"Disc");
    EXPECT_EQ(language_.GetString(L"menu.usb"), L"USB");
}

TEST_F(LanguageTable, HasNoTextForWhatItDoesNotName) {
    ASSERT_TRUE(LoadTexts("12 tuner = Radio\n2147483647 = Last\n"));
    EXPECT_EQ(language_.GetString(0), L"");
    EXPECT_EQ(language_.GetString(-12), L"");
    EXPECT_EQ(language_.GetString(13), L"");
    EXPECT_EQ(language_.GetString(2147483647), L"Last");
    EXPECT_EQ(language_.GetString(L"other"), L"other");
    EXPECT_EQ(language_.GetString(L"12"), L"12");
    EXPECT_EQ(language_.GetString(L""), L"");
    EXPECT_EQ(language_.GetString(static_cast<const wchar_t*>(nullptr)), L"");
}

TEST_F(LanguageTable, HoldsTextsOfAllScripts) {
    ASSERT_TRUE(
        LoadTexts("1 = Verkehrsinformationen f\xC3\xBCr \xCE\xBB\xCE\xAE\xCF\x88\xCE\xB7\n"
                  "2 = \xE4\xBA\xA4\xE9\x80\x9A \xF0\x9F\x9A\x97\n"));
    EXPECT_EQ(language_.GetString(1), L"Verkehrsinformationen f\u00FCr \u03BB\u03AE\u03C8\u03B7");
    EXPECT_EQ(language_.GetString(2), L"\u4EA4\u901A \U0001F697");
}

TEST_F(LanguageTable, TranslatesEscapesAndQuotedBlanks) {
    ASSERT_TRUE(LoadTexts("1 = two\\nlines\\tand a tab \\\\n\n2 = \"  blanks \"\n3 =\n4 = a = b ; c\n"));
    EXPECT_EQ(language_.GetString(1), L"two\nlines\tand a tab \\n");
    EXPECT_EQ(language_.GetString(2), L"  blanks ");
    EXPECT_EQ(language_.GetString(3), L"");
    EXPECT_EQ(language_.GetString(4), L"a = b ; c");
}

TEST_F(LanguageTable, SkipsCommentsBlankLinesAndWhatItDoesNotKnow) {
    ASSERT_TRUE(
        Load("\xEF\xBB\xBF; head\r\n\r\n[Language]\r\nName=Test\r\nauthor=me\r\n[TEXT]\r\n# note\r\n"
             "1=one\r\n[later]\r\n-1 what is this=x\r\n"));
    EXPECT_EQ(language_.GetString(1), L"one");
}

TEST_F(LanguageTable, TakesTheFirstOfSeveralTexts) {
    ASSERT_TRUE(LoadTexts("1 a = first\n1 b = second\n2 a = third\n"));
    EXPECT_EQ(language_.GetString(1), L"first");
    EXPECT_EQ(language_.GetString(L"a"), L"first");
    EXPECT_EQ(language_.GetString(L"b"), L"second");
    EXPECT_EQ(language_.GetString(2), L"third");
}

TEST_F(LanguageTable, NamesTheDayHalvesThatTimesAreWrittenWith) {
    ASSERT_TRUE(
        Load("[language]\nname=\xE4\xB8\xAD\xE6\x96\x87\nam=\xE4\xB8\x8A\xE5\x8D\x88\n"
             "pm=\xE4\xB8\x8B\xE5\x8D\x88\n"));
    EXPECT_EQ(CLQDateTime(2024, 1, 1, 0, 5, 0).toTimeString(L"hh:mmtt"), L"12:05\u4E0A\u5348");
    EXPECT_EQ(CLQDateTime(2024, 1, 1, 12, 5, 0).toTimeString(L"hh:mmtt"), L"12:05\u4E0B\u5348");
}

TEST_F(LanguageTable, GoesBackToAmAndPmWithATableThatNamesNone) {
    ASSERT_TRUE(Load("[language]\nname=a\nam=x\npm=y\n"));
    ASSERT_TRUE(Load("[language]\nname=b\nam=\n"));
    EXPECT_EQ(language_.GetMorning(), L"AM");
    EXPECT_EQ(language_.GetAfternoon(), L"PM");
}

TEST_F(LanguageTable, ReplacesAllTextsOfTheOneBefore) {
    ASSERT_TRUE(LoadTexts("1 = old\n2 = gone\n"));
    ASSERT_TRUE(LoadTexts("1 = new\n"));
    EXPECT_EQ(language_.GetString(1), L"new");
    EXPECT_EQ(language_.GetString(2), L"");
}

TEST_F(LanguageTable, IsKeptWhenAnotherCannotBeRead) {
    ASSERT_TRUE(LoadTexts("1 = kept\n"));
    device_.Write("folder/inside", "");
    EXPECT_FALSE(language_.LoadLanguage(nullptr));
    EXPECT_FALSE(language_.LoadLanguage(L""));
    EXPECT_FALSE(language_.LoadLanguage(L"\\absent.lng"));
    EXPECT_FALSE(language_.LoadLanguage(L"\\folder"));
    EXPECT_EQ(language_.GetString(1), L"kept");
}

TEST_F(LanguageTable, IsKeptWhenAnotherIsDamaged) {
    ASSERT_TRUE(LoadTexts("1 = kept\n"));
    const std::string head = "[language]\nname=x\n[text]\n";
    const std::string damaged[] = {
        "",
        "[text]\n1 = no language\n",
        "[language]\n[text]\n1 = no name\n",
        "1 = above all sections\n" + head,
        head + "1 = one\nno text\n",
        head + "1 = one\n[unclosed\n",
        head + "1 = one\n= nameless\n",
        head + "0 = id out of range\n",
        head + "2147483648 = id out of range\n",
        head + "12a = neither id nor key\n",
        head + "1 two words = x\n",
        head + "two words = x\n",
        head + "1 = unknown \\escape\n",
        head + "1 = open escape \\\n",
        head + "1 = not UTF-8 \xFF\n",
        head + "1 = cut in a character \xE4\xB8",
        head + "1 = zero \0\n"s,
        "\xFF\xFE[\0l\0a\0n\0g\0u\0a\0g\0e\0]\0\n\0n\0a\0m\0e\0=\0x\0"s,
        std::string(100000, '\0'),
    };
    for (const std::string& bytes : damaged)
        EXPECT_FALSE(Load(bytes)) << bytes.substr(0, 80);
    EXPECT_EQ(language_.GetString(1), L"kept");
}

TEST_F(LanguageTable, IsKeptWhenAnotherIsTooLarge) {
    ASSERT_TRUE(LoadTexts("1 = kept\n"));
    EXPECT_FALSE(LoadTexts("2 = x\n;" + std::string(std::size_t{4} << 20, '-')));
    std::string lines;
    for (int text = 0; text < 65536; ++text)
        lines += "k=\n";
    EXPECT_FALSE(LoadTexts(lines + "k=\n"));
    EXPECT_EQ(language_.GetString(1), L"kept");
    EXPECT_TRUE(LoadTexts(lines));
}

TEST_F(LanguageTable, LiesInTheLanguageFolderWhenNoFolderIsNamed) {
    device_.Write("NandFlash/Application/Resource/Language/German.lng",
                  "[language]\nname=Deutsch\n[text]\n1=Zur\xC3\xBC"
                  "ck\n");
    EXPECT_TRUE(language_.LoadLanguage(L"german.lng"));
    EXPECT_EQ(language_.GetString(1), L"Zur\u00FCck");
}
