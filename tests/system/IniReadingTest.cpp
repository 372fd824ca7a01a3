#include <climits>
#include <gtest/gtest.h>

#include "engine/system/IniReadWrite.h"

#include "tests/system/ScratchDevice.h"

namespace {

constexpr std::size_t kMegabyte = std::size_t{1} << 20;

class IniReading : public testing::Test {
  protected:
    void Load(std::string_view bytes) {
        device_.Write("Profile/Settings.ini", bytes);
        ini_.SetFileName(L"\\Profile\\Settings.ini");
    }
    std::wstring Text(const wchar_t* section, const wchar_t* key) {
        return ini_.GetString(section, key, L"missing");
    }
    int Number(const wchar_t* key) { return ini_.GetInt(L"Numbers", key, -7777); }

    ScratchDevice device_;
    CLQIniReadWrite ini_;
};

}  // namespace

TEST_F(IniReading, FindsAValueBySectionAndKey) {
    Load("[PATH]\r\nDATAPATH=\\NandFlash\\Application\\Data\r\n");
    EXPECT_EQ(Text(L"PATH", L"DATAPATH"), L"\\NandFlash\\Application\\Data");
}

TEST_F(IniReading, GivesTheFallbackForWhatIsMissing) {
    Load("[PATH]\nDATAPATH=x\n");
    EXPECT_EQ(Text(L"PATH", L"OTHER"), L"missing");
    EXPECT_EQ(Text(L"OTHER", L"DATAPATH"), L"missing");
    EXPECT_EQ(ini_.GetInt(L"PATH", L"OTHER", 42), 42);
}

TEST_F(IniReading, ComparesNamesWithoutRegardToCase) {
    Load("[Path]\nDataPath=x\n[\xC3\x84ther]\n\xCE\xA9=omega\n");
    EXPECT_EQ(Text(L"PATH", L"DATAPATH"), L"x");
    EXPECT_EQ(Text(L"\u00E4THER", L"\u03C9"), L"omega");
}

TEST_F(IniReading, FindsAValueByKeyAndSectionToo) {
    Load("[ShortCut]\n1=4\n2=17\n");
    EXPECT_EQ(ini_.GetInt(L"1", L"ShortCut", -1), 4);
    EXPECT_EQ(ini_.GetInt(L"ShortCut", L"2", -1), 17);
    EXPECT_EQ(Text(L"2", L"shortcut"), L"17");
}

TEST_F(IniReading, PrefersTheOrderOfSectionAndKey) {
    Load("[a]\nb=first\n[b]\na=second\n");
    EXPECT_EQ(Text(L"a", L"b"), L"first");
    EXPECT_EQ(Text(L"b", L"a"), L"second");
}

TEST_F(IniReading, TakesTheFirstOfSeveralEntries) {
    Load("[a]\nx=1\nX=2\n[b]\ny=3\n[A]\nx=4\nz=5\n");
    EXPECT_EQ(Text(L"a", L"x"), L"1");
    EXPECT_EQ(Text(L"a", L"z"), L"5");
}

TEST_F(IniReading, SkipsCommentsAndLinesThatAreNoneOfTheFormat) {
    Load("; x=1\n[a]\n  # y=2\n;z=3\njust words\n=nameless\n[unclosed\nw=4\n");
    EXPECT_EQ(Text(L"a", L"x"), L"missing");
    EXPECT_EQ(Text(L"a", L"y"), L"missing");
    EXPECT_EQ(Text(L"a", L"z"), L"missing");
    EXPECT_EQ(Text(L"a", L"w"), L"4");
}

TEST_F(IniReading, DropsBlanksAroundNamesAndValues) {
    Load(" \t[ a b ] behind\n\t key name \t= \t some value \t\n");
    EXPECT_EQ(Text(L"a b", L"key name"), L"some value");
}

TEST_F(IniReading, KeepsBlanksOfAValueInsideQuotesAndAllOtherQuotes) {
    Load("[a]\nblank=\"  x \"\nplain=\"x\"\nhalf=\"x\nempty=\"\"\nnested=\"\" x\"\"\n");
    EXPECT_EQ(Text(L"a", L"blank"), L"  x ");
    EXPECT_EQ(Text(L"a", L"plain"), L"\"x\"");
    EXPECT_EQ(Text(L"a", L"half"), L"\"x");
    EXPECT_EQ(Text(L"a", L"empty"), L"\"\"");
    EXPECT_EQ(Text(L"a", L"nested"), L"\" x\"");
}

TEST_F(IniReading, TakesCommentSignsInsideAValueAsPartOfIt) {
    Load("[a]\nx=1;2 # 3\nequals=a=b\n");
    EXPECT_EQ(Text(L"a", L"x"), L"1;2 # 3");
    EXPECT_EQ(Text(L"a", L"equals"), L"a=b");
}

TEST_F(IniReading, FindsAnEmptyValue) {
    Load("[a]\nx=\ny =");
    EXPECT_EQ(Text(L"a", L"x"), L"");
    EXPECT_EQ(Text(L"a", L"y"), L"");
    EXPECT_EQ(ini_.GetInt(L"a", L"x", 5), 5);
}

TEST_F(IniReading, EndsALineWithCarriageReturnLineFeedOrBoth) {
    Load("[a]\rx=1\ny=2\r\nz=3");
    EXPECT_EQ(Text(L"a", L"x"), L"1");
    EXPECT_EQ(Text(L"a", L"y"), L"2");
    EXPECT_EQ(Text(L"a", L"z"), L"3");
}

TEST_F(IniReading, FindsNoKeysAboveTheFirstSection) {
    Load("x=1\n[a]\ny=2\n");
    EXPECT_EQ(Text(L"", L"x"), L"missing");
    EXPECT_EQ(Text(L"a", L"x"), L"missing");
}

TEST_F(IniReading, ReadsDecimalAndHexadecimalNumbers) {
    Load(
        "[Numbers]\nzero=0\nplus=+12\nminus=-34\nblank= 56 \nhex=0x1F\nHEX=0XaBc\npattern=0xFF0000FF\n"
        "colour=0xFFFFFFFF\nleading=0000000000000000000007\n");
    EXPECT_EQ(Number(L"zero"), 0);
    EXPECT_EQ(Number(L"plus"), 12);
    EXPECT_EQ(Number(L"minus"), -34);
    EXPECT_EQ(Number(L"blank"), 56);
    EXPECT_EQ(Number(L"hex"), 0x1F);
    EXPECT_EQ(Number(L"pattern"), static_cast<int>(0xFF0000FFu));
    EXPECT_EQ(Number(L"colour"), -1);
    EXPECT_EQ(Number(L"leading"), 7);
}

TEST_F(IniReading, StopsADecimalNumberAtTheLimitsOfInt) {
    Load(
        "[Numbers]\nlargest=2147483647\nover=2147483648\nhuge=99999999999999999999999999999999\n"
        "least=-2147483648\nunder=-2147483649\n");
    EXPECT_EQ(Number(L"largest"), INT_MAX);
    EXPECT_EQ(Number(L"over"), INT_MAX);
    EXPECT_EQ(Number(L"huge"), INT_MAX);
    EXPECT_EQ(Number(L"least"), INT_MIN);
    EXPECT_EQ(Number(L"under"), INT_MIN);
}

TEST_F(IniReading, GivesTheFallbackForTextThatIsNotANumberAsAWhole) {
    Load(
        "[Numbers]\nword=twelve\ntail=12abc\nfraction=1.5\nsign=-\nhex=0x\nwide=0x100000000\nletter=0xG\n"
        "signedHex=-0x10\ninner=1 2\nquoted=\"3\"\nquotedBlank=\" 4\"\n");
    for (const wchar_t* key : {L"word", L"tail", L"fraction", L"sign", L"hex", L"wide", L"letter",
                               L"signedHex", L"inner", L"quoted", L"quotedBlank"})
        EXPECT_EQ(Number(key), -7777) << std::string(key, key + std::wcslen(key));
}

TEST_F(IniReading, GivesTheFallbackForNullAndEmptyNames) {
    Load("[a]\nx=1\n[]\ny=2\n");
    EXPECT_EQ(Text(nullptr, L"x"), L"missing");
    EXPECT_EQ(Text(L"a", nullptr), L"missing");
    EXPECT_EQ(Text(L"", L"y"), L"missing");
    EXPECT_EQ(Text(nullptr, nullptr), L"missing");
    EXPECT_EQ(ini_.GetInt(nullptr, nullptr, 3), 3);
}

TEST_F(IniReading, GivesAnEmptyTextForAMissingKeyWithoutAFallback) {
    Load("[a]\n");
    EXPECT_EQ(ini_.GetString(L"a", L"x", nullptr), L"");
}

TEST_F(IniReading, ReadsNothingWithoutAFileName) {
    EXPECT_EQ(Text(L"a", L"x"), L"missing");
    ini_.SetFileName(nullptr);
    EXPECT_EQ(Text(L"a", L"x"), L"missing");
    ini_.SetFileName(std::wstring());
    EXPECT_EQ(Text(L"a", L"x"), L"missing");
}

TEST_F(IniReading, ReadsAMissingFileAndAFolderAsEmptyFiles) {
    device_.Write("Profile/Folder.ini/inside", "");
    ini_.SetFileName(L"\\Profile\\Absent.ini");
    EXPECT_EQ(Text(L"a", L"x"), L"missing");
    ini_.SetFileName(L"\\Profile\\Folder.ini");
    EXPECT_EQ(Text(L"a", L"x"), L"missing");
}

TEST_F(IniReading, FindsTheFileWithoutALeadingSeparatorAndWithoutRegardToCase) {
    device_.Write("NandFlash/Application/Profile/LQ_ShortcutConfig.ini", "[Default]\nDEFUALTID=13,14\n");
    ini_.SetFileName(L"NandFlash/application\\profile\\lq_shortcutconfig.ini");
    EXPECT_EQ(Text(L"Default", L"DEFUALTID"), L"13,14");
}

TEST_F(IniReading, ForgetsTheOldFileWhenAnotherIsNamed) {
    device_.Write("one.ini", "[a]\nx=1\n");
    device_.Write("two.ini", "[a]\ny=2\n");
    ini_.SetFileName(L"one.ini");
    ini_.SetFileName(L"two.ini");
    EXPECT_EQ(Text(L"a", L"x"), L"missing");
    EXPECT_EQ(Text(L"a", L"y"), L"2");
}

TEST_F(IniReading, ReadsTheFileAnewWhenTheSameNameIsSetAgain) {
    Load("[a]\nx=1\n");
    device_.Write("Profile/Settings.ini", "[a]\nx=2\n");
    EXPECT_EQ(Text(L"a", L"x"), L"1");
    ini_.SetFileName(L"\\Profile\\Settings.ini");
    EXPECT_EQ(Text(L"a", L"x"), L"2");
}

TEST_F(IniReading, ReadsAFileThatEndsInTheMiddleOfALine) {
    Load("[a]\nx=1\ny");
    EXPECT_EQ(Text(L"a", L"x"), L"1");
    EXPECT_EQ(Text(L"a", L"y"), L"missing");
    Load("[a]\nx=1\n[b");
    EXPECT_EQ(Text(L"a", L"x"), L"1");
}

TEST_F(IniReading, ReadsAFileOfOneMegabyteAndNoLongerOne) {
    const std::string start = "[a]\nx=1\n;";
    Load(start + std::string(kMegabyte - start.size(), '-'));
    EXPECT_EQ(Text(L"a", L"x"), L"1");
    Load(start + std::string(kMegabyte - start.size() + 1, '-'));
    EXPECT_EQ(Text(L"a", L"x"), L"missing");
}
