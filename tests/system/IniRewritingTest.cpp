#include <gtest/gtest.h>

#include "engine/system/IniReadWrite.h"
#include "engine/system/System.h"

#include "tests/system/ScratchDevice.h"

namespace {

constexpr std::size_t kMegabyte = std::size_t{1} << 20;

class IniRewriting : public testing::Test {
  protected:
    void Load(std::string_view bytes) {
        device_.Write("x.ini", bytes);
        ini_.SetFileName(L"x.ini");
    }
    bool Set(const wchar_t* section, const wchar_t* key, const wchar_t* value) {
        return ini_.SetValue(section, key, value, true);
    }
    std::string Updated() {
        ini_.Update();
        return device_.Read("x.ini");
    }
    /// What another reader of the file finds.
    std::wstring Stored(const wchar_t* section, const wchar_t* key) {
        CLQIniReadWrite other;
        other.SetFileName(L"x.ini");
        return other.GetString(section, key, L"missing");
    }

    ScratchDevice device_;
    CLQIniReadWrite ini_;
};

}  // namespace

TEST_F(IniRewriting, ChangesNothingButTheValue) {
    Load("; head\r\n\r\n  [ One ] tail\n\n# note\n key\t = \told \t\nunknown line\n=\n[two]\nkey=1\n\n; end");
    EXPECT_TRUE(Set(L"one", L"KEY", L"new value"));
    EXPECT_EQ(
        Updated(),
        "; head\r\n\r\n  [ One ] tail\n\n# note\n key\t = \tnew value \t\nunknown line\n=\n[two]\nkey=1\n\n; "
        "end");
}

TEST_F(IniRewriting, ShowsAPendingValueBeforeItIsWritten) {
    Load("[a]\nx=1\n");
    EXPECT_TRUE(ini_.SetValue(L"a", L"x", 2, false));
    EXPECT_TRUE(ini_.SetValue(L"a", L"y", 3, true));
    EXPECT_EQ(ini_.GetInt(L"a", L"x", 0), 2);
    EXPECT_EQ(ini_.GetInt(L"Y", L"A", 0), 3);
    EXPECT_EQ(device_.Read("x.ini"), "[a]\nx=1\n");
}

TEST_F(IniRewriting, WritesTheLastOfSeveralValues) {
    Load("[a]\nx=1\n");
    Set(L"a", L"x", L"2");
    Set(L"x", L"a", L"3");
    Set(L"A", L"X", L"4");
    EXPECT_EQ(Updated(), "[a]\nx=4\n");
}

TEST_F(IniRewriting, FindsInBothOrdersWhatWasSetInOne) {
    ini_.SetFileName(L"x.ini");
    for (int button = 1; button <= 5; ++button) {
        EXPECT_TRUE(ini_.SetValue(L"ShortCut", std::to_wstring(button).c_str(), button * 10, true));
        ini_.Update();
    }
    EXPECT_EQ(device_.Read("x.ini"), "[ShortCut]\r\n1=10\r\n2=20\r\n3=30\r\n4=40\r\n5=50\r\n");
    CLQIniReadWrite other;
    other.SetFileName(L"x.ini");
    for (int button = 1; button <= 5; ++button) {
        const std::wstring name = std::to_wstring(button);
        EXPECT_EQ(other.GetInt(name.c_str(), L"ShortCut", -1), button * 10);
        EXPECT_EQ(other.GetInt(L"ShortCut", name.c_str(), -1), button * 10);
    }
}

TEST_F(IniRewriting, ChangesTheEntryOfTheOtherOrderRatherThanAddingOne) {
    Load("[1]\nShortCut=4\n");
    EXPECT_TRUE(ini_.SetValue(L"ShortCut", L"1", 17, true));
    EXPECT_EQ(ini_.GetInt(L"1", L"ShortCut", -1), 17);
    EXPECT_EQ(Updated(), "[1]\nShortCut=17\n");
}

TEST_F(IniRewriting, ChangesTheEntryOfTheGivenOrderWhereBothExist) {
    Load("[a]\nb=1\n[b]\na=2\n");
    Set(L"b", L"a", L"3");
    EXPECT_EQ(Updated(), "[a]\nb=1\n[b]\na=3\n");
}

TEST_F(IniRewriting, ChangesTheFirstOfSeveralEntries) {
    Load("[a]\nx=1\nx=2\n[a]\nx=3\n");
    Set(L"a", L"x", L"9");
    EXPECT_EQ(Updated(), "[a]\nx=9\nx=2\n[a]\nx=3\n");
}

TEST_F(IniRewriting, AddsAKeyBehindTheLastOneOfItsSection) {
    Load("[a]\nx=1\n\n; about b\n[b]\ny=2\n");
    Set(L"a", L"z", L"3");
    Set(L"A", L"w", L"4");
    EXPECT_EQ(Updated(), "[a]\nx=1\nz=3\nw=4\n\n; about b\n[b]\ny=2\n");
}

TEST_F(IniRewriting, AddsAKeyToASectionWithoutKeys) {
    Load("[a]\r\n; none yet\r\n[b]");
    Set(L"a", L"x", L"1");
    Set(L"b", L"y", L"2");
    EXPECT_EQ(Updated(), "[a]\r\nx=1\r\n; none yet\r\n[b]\r\ny=2");
}

TEST_F(IniRewriting, AddsAKeyToTheFirstOccurrenceOfItsSection) {
    Load("[a]\nx=1\n[b]\ny=2\n[a]\nz=3\n");
    Set(L"a", L"w", L"4");
    EXPECT_EQ(Updated(), "[a]\nx=1\nw=4\n[b]\ny=2\n[a]\nz=3\n");
}

TEST_F(IniRewriting, AddsASectionAtTheEnd) {
    Load("[a]\nx=1");
    Set(L"New", L"y", L"2");
    Set(L"Other", L"z", L"3");
    Set(L"new", L"w", L"4");
    EXPECT_EQ(Updated(), "[a]\nx=1\n\n[New]\ny=2\nw=4\n\n[Other]\nz=3\n");
}

TEST_F(IniRewriting, ChangesAndAddsAtTheEndOfTheFileAtOnce) {
    Load("[a]\nx=");
    Set(L"c", L"z", L"3");
    Set(L"a", L"y", L"2");
    Set(L"a", L"x", L"1");
    EXPECT_EQ(Updated(), "[a]\nx=1\ny=2\n\n[c]\nz=3\n");
}

TEST_F(IniRewriting, AddsNoSecondBlankLineAboveASection) {
    Load("[a]\nx=1\n\n");
    Set(L"b", L"y", L"2");
    EXPECT_EQ(Updated(), "[a]\nx=1\n\n[b]\ny=2\n");
}

TEST_F(IniRewriting, AddsInTheSpacingAndLineBreaksOfTheNeighbours) {
    Load("[a]\nx = 1\n[b]\r\ny=2\r\n");
    Set(L"a", L"z", L"3");
    Set(L"b", L"w", L"4");
    Set(L"c", L"v", L"5");
    EXPECT_EQ(Updated(), "[a]\nx = 1\nz = 3\n[b]\r\ny=2\r\nw=4\r\n\n[c]\nv = 5\n");
}

TEST_F(IniRewriting, KeepsCarriageReturnsAloneAsLineBreaks) {
    Load("[a]\rx=1\r;c\r");
    Set(L"a", L"y", L"2");
    EXPECT_EQ(Updated(), "[a]\rx=1\ry=2\r;c\r");
}

TEST_F(IniRewriting, AddsNoMissingKeyWhenNotToldTo) {
    Load("[a]\nx=1\n");
    EXPECT_FALSE(ini_.SetValue(L"a", L"y", 2, false));
    EXPECT_FALSE(ini_.SetValue(L"b", L"x", L"2", false));
    EXPECT_TRUE(ini_.SetValue(L"x", L"a", L"3", false));
    EXPECT_EQ(Updated(), "[a]\nx=3\n");
}

TEST_F(IniRewriting, StoresTheValueThatItWasGiven) {
    Load("[a]\nx=1\n");
    for (const wchar_t* value :
         {L"", L" ", L"  both  ", L"\ttab", L"\"", L"\"\"", L"\"q\"", L"\" q\"", L"\"\" q\"\"", L" \"",
          L"; no comment", L"[no section]", L"=", L"a=b", L"\\n", L"\u00A0x"}) {
        EXPECT_TRUE(Set(L"a", L"x", value));
        EXPECT_TRUE(Set(L"a", L"added", value));
        EXPECT_EQ(ini_.GetString(L"a", L"x", L"missing"), value);
        ini_.Update();
        EXPECT_EQ(Stored(L"a", L"x"), value);
        EXPECT_EQ(Stored(L"a", L"added"), value);
    }
}

TEST_F(IniRewriting, StoresEveryIntAsItIs) {
    Load("");
    for (const int value : {0, -1, 2147483647, -2147483647 - 1}) {
        EXPECT_TRUE(ini_.SetValue(L"a", L"x", value, true));
        ini_.Update();
        ini_.SetFileName(L"x.ini");
        EXPECT_EQ(ini_.GetInt(L"a", L"x", 5), value);
    }
}

TEST_F(IniRewriting, RefusesWhatIsNotAName) {
    Load("[a]\nx=1\n");
    const std::wstring longest(255, L'n');
    const std::wstring tooLong(256, L'n');
    for (const wchar_t* name :
         {static_cast<const wchar_t*>(nullptr), L"", L" ", L" a", L"a ", L"\ta", L"a\nb", L"a\rb", L"a=b",
          L"[a", L"a]", L";a", L"#a", L"a\x7F", tooLong.c_str()}) {
        EXPECT_FALSE(Set(name, L"key", L"1"));
        EXPECT_FALSE(Set(L"section", name, L"1"));
        EXPECT_FALSE(ini_.SetValue(name, name, 1, true));
    }
    EXPECT_EQ(Updated(), "[a]\nx=1\n");
    EXPECT_TRUE(Set(longest.c_str(), L"a;#b", L"1"));
    ini_.Update();
    EXPECT_EQ(Stored(longest.c_str(), L"a;#b"), L"1");
}

TEST_F(IniRewriting, RefusesAValueThatFitsInNoLine) {
    Load("[a]\nx=1\n");
    const std::wstring tooLong(65536, L'v');
    const std::wstring halfCharacter(1, static_cast<wchar_t>(0xD83D));
    for (const wchar_t* value : {static_cast<const wchar_t*>(nullptr), L"a\nb", L"a\r", L"\n",
                                 tooLong.c_str(), halfCharacter.c_str()})
        EXPECT_FALSE(Set(L"a", L"x", value));
    EXPECT_EQ(Updated(), "[a]\nx=1\n");
}

TEST_F(IniRewriting, WorksInMemoryWithoutAFileName) {
    EXPECT_TRUE(Set(L"a", L"x", L"1"));
    EXPECT_EQ(ini_.GetString(L"x", L"a", L""), L"1");
    ini_.Update();
    EXPECT_EQ(ini_.GetString(L"a", L"x", L""), L"1");
}

TEST_F(IniRewriting, WorksInMemoryOnTheContentsOfAFile) {
    Load("[a]\nx=1\n");
    ASSERT_TRUE(Set(L"a", L"x", L"2"));
    ASSERT_TRUE(ini_.SetContents("; other\n[a]\ny = 1\n"));
    EXPECT_EQ(ini_.GetString(L"a", L"x", L"none"), L"none");
    EXPECT_EQ(ini_.GetContents(), "; other\n[a]\ny = 1\n");
    ASSERT_TRUE(Set(L"a", L"y", L"2"));
    ASSERT_TRUE(Set(L"b", L"z", L"3"));
    EXPECT_EQ(ini_.GetContents(), "; other\n[a]\ny = 2\n\n[b]\nz = 3\n");
    EXPECT_EQ(Updated(), "[a]\nx=1\n") << "no file has these contents";
    EXPECT_FALSE(ini_.SetContents(std::string(kMegabyte + 1, ' ')));
    EXPECT_EQ(ini_.GetString(L"b", L"z", L"none"), L"3");
}

TEST_F(IniRewriting, GivesTheContentsOfItsFile) {
    Load("[a]\nx=1\n");
    EXPECT_EQ(ini_.GetContents(), "[a]\nx=1\n");
    ASSERT_TRUE(Set(L"a", L"x", L"22"));
    EXPECT_EQ(ini_.GetContents(), "[a]\nx=22\n");
    EXPECT_EQ(device_.Read("x.ini"), "[a]\nx=1\n");
}

TEST_F(IniRewriting, MakesTheFoldersOfANewFile) {
    ini_.SetFileName(L"\\NandFlash\\Application\\Profile\\LQ_SysSettings.ini");
    EXPECT_TRUE(Set(L"PATH", L"DATAPATH", L"\\Data"));
    ini_.Update();
    CLQIniReadWrite other;
    other.SetFileName(L"\\NandFlash\\Application\\Profile\\LQ_SysSettings.ini");
    EXPECT_EQ(other.GetString(L"PATH", L"DATAPATH", L""), L"\\Data");
}

TEST_F(IniRewriting, DropsPendingValuesWithTheNextFileName) {
    Load("[a]\nx=1\n");
    Set(L"a", L"x", L"2");
    ini_.SetFileName(L"x.ini");
    EXPECT_EQ(ini_.GetInt(L"a", L"x", 0), 1);
    EXPECT_EQ(Updated(), "[a]\nx=1\n");
}

TEST_F(IniRewriting, KeepsWhatOthersHaveWrittenMeanwhile) {
    Load("[a]\nx=1\ny=2\n");
    Set(L"a", L"x", L"10");
    Set(L"a", L"z", L"30");
    device_.Write("x.ini", "; theirs\n[b]\nw=4\n[a]\ny=20\nx=11\n");
    EXPECT_EQ(Updated(), "; theirs\n[b]\nw=4\n[a]\ny=20\nx=10\nz=30\n");
    EXPECT_EQ(ini_.GetInt(L"a", L"y", 0), 20);
    EXPECT_EQ(ini_.GetInt(L"b", L"w", 0), 4);
}

TEST_F(IniRewriting, MeetsTheOtherOrderThatOthersHaveWrittenMeanwhile) {
    Load("");
    Set(L"ShortCut", L"1", L"10");
    device_.Write("x.ini", "[1]\nShortCut=4\n");
    EXPECT_EQ(Updated(), "[1]\nShortCut=10\n");
}

TEST_F(IniRewriting, KeepsTwoValuesApartWhenOthersHaveRemovedOneOrder) {
    Load("[a]\nb=1\n[b]\na=2\n");
    Set(L"a", L"b", L"10");
    Set(L"b", L"a", L"20");
    device_.Write("x.ini", "[b]\na=2\n");
    EXPECT_EQ(Updated(), "[b]\na=20\n\n[a]\nb=10\n");
}

TEST_F(IniRewriting, MakesTheFileAnewWhenOthersHaveRemovedIt) {
    Load("[a]\nx=1\n");
    Set(L"a", L"x", L"2");
    std::filesystem::remove(device_.HostPath("x.ini"));
    EXPECT_EQ(Updated(), "[a]\r\nx=2\r\n");
}

TEST_F(IniRewriting, TouchesNoFileWithoutAChange) {
    Load("[a]\nx=1\n");
    // Not every system keeps parts of a second.
    const auto now = std::filesystem::file_time_type::clock::now();
    const std::filesystem::file_time_type longAgo =
        std::chrono::floor<std::chrono::seconds>(now) - std::chrono::hours(24);
    std::filesystem::last_write_time(device_.HostPath("x.ini"), longAgo);
    ini_.Update();
    Set(L"a", L"x", L"1");
    ini_.Update();
    EXPECT_EQ(std::filesystem::last_write_time(device_.HostPath("x.ini")), longAgo);
    ini_.SetFileName(L"absent.ini");
    ini_.Update();
    EXPECT_FALSE(IsFileExist(L"absent.ini"));
}

TEST_F(IniRewriting, WritesEveryValueOnce) {
    Load("[a]\nx=1\n");
    Set(L"a", L"x", L"2");
    ini_.Update();
    device_.Write("x.ini", "[a]\nx=3\n");
    EXPECT_EQ(Updated(), "[a]\nx=3\n");
}

TEST_F(IniRewriting, KeepsPendingValuesWhileTheFolderIsMissing) {
    ini_.SetFileName(L"\\Profile\\x.ini");
    Set(L"a", L"x", L"1");
    ini_.Update();
    EXPECT_EQ(ini_.GetInt(L"a", L"x", 0), 1);
    ASSERT_TRUE(CreateDir(L"\\Profile"));
    ini_.Update();
    EXPECT_EQ(device_.Read("Profile/x.ini"), "[a]\r\nx=1\r\n");
}

TEST_F(IniRewriting, LeavesNothingBesideTheFile) {
    device_.Write("folder/x.ini", "[a]\nx=1\n");
    ini_.SetFileName(L"folder\\x.ini");
    Set(L"a", L"x", L"2");
    ini_.Update();
    EXPECT_EQ(device_.CountEntries("folder"), 1);
}

TEST_F(IniRewriting, NeverOverwritesAFileThatIsTooLongToRead) {
    const std::string contents = "[a]\nx=1\n;" + std::string(kMegabyte, '-');
    Load(contents);
    EXPECT_TRUE(Set(L"a", L"x", L"2"));
    EXPECT_EQ(Updated(), contents);
}

TEST_F(IniRewriting, WritesNoFileThatItCouldNotReadAgain) {
    Load("[a]\nx=1\n");
    Set(L"a", L"x", L"2222");
    const std::string grown = "[a]\nx=1\n;" + std::string(kMegabyte - 10, '-');
    device_.Write("x.ini", grown);
    EXPECT_EQ(Updated(), grown);
    EXPECT_EQ(ini_.GetInt(L"a", L"x", 0), 2222);
}

TEST_F(IniRewriting, RefusesValuesBeyondOneMegabyteInTotal) {
    Load("");
    const std::wstring value(60000, L'v');
    int accepted = 0;
    while (accepted < 100 && Set(L"a", std::to_wstring(accepted).c_str(), value.c_str()))
        ++accepted;
    EXPECT_EQ(accepted, 17);
    EXPECT_TRUE(Set(L"a", L"0", L"short"));
    EXPECT_TRUE(Set(L"a", L"in the place of the first", L"x"));
    EXPECT_LE(Updated().size(), kMegabyte);
    EXPECT_EQ(Stored(L"a", L"0"), L"short");
    EXPECT_EQ(Stored(L"a", L"16"), value);
}

TEST_F(IniRewriting, TakesAFolderInThePlaceOfTheFileAsUnreadable) {
    device_.Write("x.ini/inside", "kept");
    ini_.SetFileName(L"x.ini");
    EXPECT_TRUE(Set(L"a", L"x", L"1"));
    ini_.Update();
    EXPECT_EQ(device_.Read("x.ini/inside"), "kept");
    EXPECT_EQ(ini_.GetInt(L"a", L"x", 0), 1);
}

TEST_F(IniRewriting, WritesTenThousandKeysWithoutDelay) {
    Load("[all]\n");
    for (int key = 0; key < 10000; ++key)
        ASSERT_TRUE(ini_.SetValue(L"all", (L"key" + std::to_wstring(key)).c_str(), key, true));
    ini_.Update();
    CLQIniReadWrite other;
    other.SetFileName(L"x.ini");
    for (int key = 0; key < 10000; ++key)
        ASSERT_EQ(other.GetInt(L"all", (L"key" + std::to_wstring(key)).c_str(), -1), key);
}
