#include <filesystem>
#include <gtest/gtest.h>
#include <string>

#include "demo/headunit/files/FolderBrowser.h"
#include "demo/headunit/files/Music.h"
#include "demo/headunit/files/SizeText.h"
#include "tests/demo/files/Stick.h"
#include "tests/support/Scene.h"

namespace korvane::demo {

namespace {

class FolderBrowserTest : public testing::Test {
  protected:
    /// The name of the entry so many places on; ".." for the way to the folder above.
    std::wstring NameAt(int offset) {
        const FolderEntry* const entry = browser_.EntryAt(offset);
        return entry ? entry->name : L"..";
    }
    void Open(const std::wstring& name) {
        while (NameAt(0) != name)
            browser_.Step(1);
        EXPECT_EQ(browser_.Open(), FolderBrowser::Opened::Folder);
    }

    test::Scene scene_;
    test::Stick stick_{scene_.DeviceFolder()};
    FolderBrowser browser_{L"\\USB"};
};

}  // namespace

TEST(SizeText, HasOneDecimalFromAThousandOn) {
    EXPECT_EQ(SizeText(0), L"0 B");
    EXPECT_EQ(SizeText(999), L"999 B");
    EXPECT_EQ(SizeText(1000), L"1.0 kB");
    EXPECT_EQ(SizeText(1999), L"1.9 kB");
    EXPECT_EQ(SizeText(999999), L"999.9 kB");
    EXPECT_EQ(SizeText(20000000), L"20.0 MB");
    EXPECT_EQ(SizeText(3456000000), L"3.4 GB");
    EXPECT_EQ(SizeText(18446744073709551615u), L"18446744.0 TB");
}

TEST(Music, IsToldByTheEndingOfTheName) {
    for (const wchar_t* const name : {L"a.mp3", L"A.MP3", L"x.y.Flac", L"夜.m4a", L".ogg"})
        EXPECT_TRUE(IsMusic({name, false, 1}));
    for (const wchar_t* const name : {L"mp3", L"a.mp", L"a.mp33", L"a.mp3.txt", L"a.", L""})
        EXPECT_FALSE(IsMusic({name, false, 1}));
    EXPECT_FALSE(IsMusic({L"Folder.mp3", true, 0}));
}

TEST(Music, IsAsLongAsItsSizeAndAMinuteAtLeast) {
    const Tracks tracks = MusicIn({{L"Folder.mp3", true, 0},
                                   {L"Lied.1.mp3", false, 16000 * 200},
                                   {L"Read me.txt", false, 99},
                                   {L"short.ogg", false, 10},
                                   {L"endless.wav", false, 18446744073709551615u}});
    ASSERT_EQ(tracks.size(), 3u);
    EXPECT_EQ(tracks[0].title, L"Lied.1");
    EXPECT_EQ(tracks[0].seconds, 200);
    EXPECT_EQ(tracks[1].seconds, 60);
    EXPECT_EQ(tracks[2].seconds, 2147483647);
}

TEST_F(FolderBrowserTest, ReadsFoldersBeforeFilesAndNothingThatIsHidden) {
    stick_.Write("b.txt");
    stick_.Write("z/inside");
    stick_.Write("a.txt", 123);
    stick_.Write(".hidden");
    stick_.Write(".Trash/x");
    stick_.Write("C/inside");
    browser_.Refresh();
    EXPECT_TRUE(browser_.HasMedium());
    ASSERT_EQ(browser_.EntryCount(), 4u);
    EXPECT_EQ(NameAt(0), L"C");
    EXPECT_EQ(NameAt(1), L"z");
    EXPECT_EQ(NameAt(2), L"a.txt");
    EXPECT_EQ(browser_.EntryAt(2)->bytes, 123u);
    EXPECT_EQ(NameAt(3), L"b.txt");
}

TEST_F(FolderBrowserTest, IsARing) {
    for (const char* const name : {"1", "2", "3"})
        stick_.Write(name);
    browser_.Refresh();
    EXPECT_EQ(NameAt(-1), L"3");
    browser_.Step(-1);
    EXPECT_EQ(NameAt(0), L"3");
    EXPECT_EQ(NameAt(1), L"1");
    browser_.Step(8);
    EXPECT_EQ(NameAt(0), L"2");
    browser_.Step(-2147483647);
    EXPECT_EQ(NameAt(0), L"1");
}

TEST_F(FolderBrowserTest, EntersAFolderAndComesBackToIt) {
    stick_.Write("A/file");
    stick_.Write("B/Deep/file");
    stick_.Write("C");
    browser_.Refresh();
    Open(L"B");
    EXPECT_FALSE(browser_.IsAtRoot());
    EXPECT_EQ(browser_.FolderName(), L"B");
    EXPECT_EQ(NameAt(0), L"Deep");
    EXPECT_EQ(NameAt(1), L"..");
    Open(L"Deep");
    EXPECT_EQ(NameAt(0), L"file");
    EXPECT_TRUE(browser_.Leave());
    EXPECT_EQ(NameAt(0), L"Deep");
    Open(L"..");
    EXPECT_TRUE(browser_.IsAtRoot());
    EXPECT_EQ(NameAt(0), L"B");
    EXPECT_FALSE(browser_.Leave());
    EXPECT_EQ(NameAt(0), L"B");
}

TEST_F(FolderBrowserTest, LeavesFilesToItsUser) {
    stick_.Write("file");
    browser_.Refresh();
    EXPECT_EQ(browser_.Open(), FolderBrowser::Opened::File);
    EXPECT_EQ(NameAt(0), L"file");
}

TEST_F(FolderBrowserTest, FindsNothingInAnEmptyMediumAndTheWayBackInAnEmptyFolder) {
    stick_.Write("");
    browser_.Refresh();
    EXPECT_TRUE(browser_.HasMedium());
    EXPECT_EQ(browser_.EntryCount(), 0u);
    EXPECT_EQ(browser_.EntryAt(0), nullptr);
    EXPECT_EQ(browser_.Open(), FolderBrowser::Opened::Nothing);
    browser_.Step(1);
    stick_.Write("Empty/");
    browser_.Refresh();
    Open(L"Empty");
    EXPECT_EQ(browser_.EntryCount(), 1u);
    EXPECT_EQ(NameAt(0), L"..");
    Open(L"..");
    EXPECT_EQ(NameAt(0), L"Empty");
}

TEST_F(FolderBrowserTest, DoesWithoutAMedium) {
    browser_.Refresh();
    EXPECT_FALSE(browser_.HasMedium());
    EXPECT_FALSE(browser_.IsFolderThere());
    EXPECT_EQ(browser_.Open(), FolderBrowser::Opened::Nothing);
    EXPECT_FALSE(browser_.Leave());
    // A file is no medium.
    test::Stick(scene_.DeviceFolder() / "x").Write("x");
    FolderBrowser file(L"\\x\\USB\\x");
    file.Refresh();
    EXPECT_FALSE(file.HasMedium());
}

TEST_F(FolderBrowserTest, KeepsItsEntryWhenTheFolderChanges) {
    for (const char* const name : {"b", "d"})
        stick_.Write(name);
    browser_.Refresh();
    browser_.Step(1);
    stick_.Write("a");
    stick_.Write("c");
    browser_.Refresh();
    EXPECT_EQ(NameAt(0), L"d");
    stick_.Remove("d");
    browser_.Refresh();
    EXPECT_EQ(NameAt(0), L"c") << "the last one";
}

TEST_F(FolderBrowserTest, ClimbsOutOfFoldersThatVanish) {
    stick_.Write("Other/file");
    stick_.Write("Stays/Goes/Deep/file");
    browser_.Refresh();
    Open(L"Stays");
    Open(L"Goes");
    Open(L"Deep");
    stick_.Remove("Stays/Goes");
    EXPECT_FALSE(browser_.IsFolderThere());
    browser_.Refresh();
    EXPECT_EQ(browser_.FolderName(), L"Stays");
    EXPECT_EQ(NameAt(0), L"..");
    stick_.Remove();
    browser_.Refresh();
    EXPECT_FALSE(browser_.HasMedium());
    EXPECT_TRUE(browser_.IsAtRoot());
    EXPECT_EQ(browser_.EntryCount(), 0u);
}

TEST_F(FolderBrowserTest, StaysWhereItIsWhenTheEntryVanishes) {
    stick_.Write("A/x");
    stick_.Write("B/x");
    stick_.Write("C/x");
    browser_.Refresh();
    browser_.Step(1);
    stick_.Remove("B");
    EXPECT_EQ(browser_.Open(), FolderBrowser::Opened::Nothing);
    EXPECT_TRUE(browser_.IsAtRoot());
    EXPECT_EQ(NameAt(0), L"C");
}

TEST_F(FolderBrowserTest, TakesNamesOfEveryKind) {
    stick_.Write("日本の歌/夜.mp3");
    stick_.Write("\xF0\x9F\x8E\xB5 emoji/x");
    stick_.Write("%s%n/x");
    stick_.Write("a*b?/x");
    stick_.Write("A\\B/x");
    stick_.Write(std::string(255, 'n'));
    browser_.Refresh();
    const std::size_t count = browser_.EntryCount();
    ASSERT_GE(count, 4u);
    for (std::size_t i = 0; i < count; ++i) {
        EXPECT_EQ(NameAt(static_cast<int>(i)).find(L'\\'), std::wstring::npos);
        const FolderBrowser::Opened opened = browser_.Open();
        if (opened == FolderBrowser::Opened::Folder) {
            EXPECT_EQ(browser_.EntryCount(), 2u) << i;
            EXPECT_TRUE(browser_.Leave());
        }
        EXPECT_TRUE(browser_.IsAtRoot());
        browser_.Step(1);
    }
}

TEST_F(FolderBrowserTest, ReadsTenThousandEntriesAndNoMore) {
    stick_.Write("");
    for (int i = 0; i < 10010; ++i)
        stick_.Write(std::to_string(100000 + i));
    browser_.Refresh();
    EXPECT_EQ(browser_.EntryCount(), 10000u);
    EXPECT_EQ(NameAt(0), L"100000");
    EXPECT_EQ(NameAt(-1), L"109999");
}

}  // namespace korvane::demo
