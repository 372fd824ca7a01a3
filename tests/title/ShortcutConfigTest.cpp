#include <fstream>
#include <ostream>
#include <sstream>

#include "engine/Korvane.h"

#include "tests/title/bench/TestPanel.h"

namespace korvane::test {
namespace {

namespace fs = std::filesystem;

constexpr char kSystemSettings[] = "NandFlash/Application/Profile/LQ_SysSettings.ini";
constexpr char kFactorySettings[] = "NandFlash/Application/Profile/LQ_ShortcutConfig.ini";
constexpr char kPanelSettings[] = "UserData/ShortCut.ini";

using Entries = std::array<std::string, kPanelButtons>;

const Entries kFixedEntries = {"0", "4", "17", "12", "18"};
const Entries kNoEntries = {"none", "none", "none", "none", "none"};
/// What is left of -1 in a byte.
constexpr PanelIds kNoIds = {255, 255, 255, 255, 255};

class ShortcutConfig : public TestPanel {
  protected:
    std::string Contents(const std::string& path) {
        std::ifstream stream(scene.DeviceFolder() / path, std::ios::binary);
        std::stringstream bytes;
        bytes << stream.rdbuf();
        return bytes.str();
    }
};

struct FactoryList {
    const char* name;
    const char* text;
    Entries entries;
};

std::ostream& operator<<(std::ostream& stream, const FactoryList& list) {
    return stream << list.name;
}

class ShortcutFactoryList : public ShortcutConfig, public testing::WithParamInterface<FactoryList> {};

TEST_P(ShortcutFactoryList, GivesTheButtonsTheirFirstSources) {
    WriteFactoryIds(GetParam().text);
    Start();
    EXPECT_EQ(StoredIds(), GetParam().entries) << GetParam().text;
}

INSTANTIATE_TEST_SUITE_P(
    Of, ShortcutFactoryList,
    testing::Values(FactoryList{"FiveIds", "0,4,17,12,18", {"0", "4", "17", "12", "18"}},
                    FactoryList{"FiveOtherIds", "37,35,15,8,6", {"37", "35", "15", "8", "6"}},
                    FactoryList{"TwoIds", "13,14", {"13", "14", "-1", "-1", "-1"}},
                    // A comma ends an id, and what is empty behind it is none.
                    FactoryList{"OneIdWithComma", "5,", {"5", "-1", "-1", "-1", "-1"}},
                    FactoryList{"FourIdsWithComma", "1,2,3,4,", {"1", "2", "3", "4", "-1"}},
                    FactoryList{"FiveIdsWithComma", "1,2,3,4,5,", {"1", "2", "3", "4", "5"}},
                    // A single id without a comma is the second button's.
                    FactoryList{"OneIdWithoutComma", "7", {"-1", "7", "-1", "-1", "-1"}},
                    FactoryList{"OneWord", "none", {"-1", "0", "-1", "-1", "-1"}},
                    FactoryList{"Nothing", "", {"-1", "-1", "-1", "-1", "-1"}},
                    // An empty id in front of a comma is 0.
                    FactoryList{"OneComma", ",", {"0", "-1", "-1", "-1", "-1"}},
                    FactoryList{"CommaInFront", ",9", {"0", "9", "-1", "-1", "-1"}},
                    FactoryList{"ThreeCommas", ",,,", {"0", "0", "0", "-1", "-1"}},
                    // Five buttons, no more.
                    FactoryList{"SixIds", "1,2,3,4,5,6", {"1", "2", "3", "4", "5"}},
                    FactoryList{"TenIds", "1,2,3,4,5,6,7,8,9,10", {"1", "2", "3", "4", "5"}},
                    FactoryList{"TenCommas", ",,,,,,,,,,", {"0", "0", "0", "0", "0"}},
                    // An id is the number at the beginning.
                    FactoryList{"BlanksAndSigns", " 8 ,\t9x,x9,-3,+6", {"8", "9", "0", "-3", "6"}},
                    FactoryList{"NumbersOfOtherForms", "0x11,1 2,3.9", {"0", "1", "3", "-1", "-1"}},
                    FactoryList{"HugeNumbers",
                                "99999999999999,-99999999999999,300",
                                {"2147483647", "-2147483648", "300", "-1", "-1"}}),
    [](const auto& list) { return std::string(list.param.name); });

TEST_F(ShortcutConfig, HasFixedIdsWithoutAFactoryList) {
    StartShown();
    EXPECT_EQ(StoredIds(), kFixedEntries);
    EXPECT_EQ(ChosenIds(), kFixedIds);
}

TEST_F(ShortcutConfig, HasNoIdsWithAnEmptyFactoryFile) {
    WriteDeviceFile(kFactorySettings, "");
    StartShown();
    EXPECT_EQ(StoredIds(), (Entries{"-1", "-1", "-1", "-1", "-1"}));
    EXPECT_EQ(ChosenIds(), kNoIds);
    for (int number = 1; number <= kPanelButtons; ++number) {
        EXPECT_EQ(PictureOn(number), "");
        EXPECT_TRUE(Button(number)->IsWindowEnabled());
    }
}

TEST_F(ShortcutConfig, HasNoIdsWithADamagedFactoryFile) {
    const std::string damaged[] = {std::string("\0\xFF\xFE[Default\n\0=\r\xC3(", 16),
                                   "[Default]\nDEFAULTID=1,2,3,4,5\n", "[Other]\nDEFUALTID2=1,2\n",
                                   "DEFUALTID=1,2,3,4,5\n", std::string(2 << 20, '\n')};
    for (const std::string& bytes : damaged) {
        WriteDeviceFile(kFactorySettings, bytes);
        StartShown();
        EXPECT_EQ(ChosenIds(), kNoIds);
        dialog.reset();
        fs::remove(scene.DeviceFolder() / kPanelSettings);
    }
}

TEST_F(ShortcutConfig, HasFixedIdsWhereAFolderHasTheNameOfTheFactoryFile) {
    fs::create_directories(scene.DeviceFolder() / kFactorySettings);
    StartShown();
    EXPECT_EQ(ChosenIds(), kFixedIds);
}

TEST_F(ShortcutConfig, SurvivesAFactoryListOfManyIds) {
    std::string list;
    for (int i = 0; i < 60000; ++i)
        list += "9,";
    WriteFactoryIds(list);
    StartShown();
    EXPECT_EQ(ChosenIds(), (PanelIds{9, 9, 9, 9, 9}));
}

TEST_F(ShortcutConfig, ReadsTheFactoryListWhenTheStripIsMade) {
    WriteFactoryIds("37,35,15,0,8");
    dialog = std::make_unique<CLQTitleDialog>();
    WriteFactoryIds("0,0,0,0,0");
    dialog->Create(0, 0, 800, 480);
    dialog->OnInit();
    EXPECT_EQ(StoredIds(), (Entries{"37", "35", "15", "0", "8"}));
}

TEST_F(ShortcutConfig, MakesTheDataDirectory) {
    WriteDeviceFile(kSystemSettings, "[PATH]\nDATAPATH=\\Media\\Settings\\Panel\n");
    Start();
    EXPECT_EQ(StoredIds("Media/Settings/Panel/ShortCut.ini"), kFixedEntries);
    EXPECT_FALSE(IsOnDevice("UserData"));
}

TEST_F(ShortcutConfig, UsesTheDataDirectoryThatIsThere) {
    WriteDeviceFile("UserData/other.txt", "untouched");
    Start();
    EXPECT_EQ(StoredIds(), kFixedEntries);
    EXPECT_EQ(Contents("UserData/other.txt"), "untouched");
}

TEST_F(ShortcutConfig, TakesADataDirectoryWithABackslashAtItsEnd) {
    WriteDeviceFile(kSystemSettings, "[PATH]\nDATAPATH=\\UserData\\\n");
    Start();
    EXPECT_EQ(StoredIds(), kFixedEntries);
    dialog.reset();
    StoreIds({37, 35, 15, 0, 8});
    StartShown();
    EXPECT_EQ(ChosenIds(), (PanelIds{37, 35, 15, 0, 8}));
}

TEST_F(ShortcutConfig, LiesInTheRootWithoutADataDirectory) {
    for (const char* settings :
         {"", "[PATH]\nDATAPATH=\n", "[PATH]\nDATAPATH2=\\UserData\n", "\xFF\xFE\x01"}) {
        WriteDeviceFile(kSystemSettings, settings);
        StartShown();
        EXPECT_EQ(StoredIds("ShortCut.ini"), kFixedEntries) << settings;
        EXPECT_EQ(ChosenIds(), kFixedIds) << settings;
        dialog.reset();
        ASSERT_TRUE(fs::remove(scene.DeviceFolder() / "ShortCut.ini"));
    }
    fs::remove(scene.DeviceFolder() / kSystemSettings);
    StartShown();
    EXPECT_EQ(StoredIds("ShortCut.ini"), kFixedEntries);
}

TEST_F(ShortcutConfig, FallsBackToTheFactoryWhenNoFileCanBeMade) {
    WriteFactoryIds("37,35,15,0,8");
    // A file where the data directory should be.
    WriteDeviceFile("UserData", "a file");
    StartShown();
    EXPECT_EQ(ChosenIds(), (PanelIds{37, 35, 15, 0, 8}));
    EXPECT_EQ(PictureOn(1), "settings_shortcut_menu_dab_n");
    EXPECT_EQ(Contents("UserData"), "a file");
}

TEST_F(ShortcutConfig, FallsBackToTheFactoryWhereAFolderHasItsName) {
    fs::create_directories(scene.DeviceFolder() / kPanelSettings);
    StartShown();
    EXPECT_EQ(ChosenIds(), kFixedIds);
}

TEST_F(ShortcutConfig, TakesADataDirectoryThatCannotBeOne) {
    for (const std::string& path : {std::string("*"), std::string("\\??\\<>|"), std::string(400, 'x'),
                                    std::string("\\..\\..\\.."), std::string("\\UserData/..")}) {
        WriteDeviceFile(kSystemSettings, "[PATH]\nDATAPATH=" + path + "\n");
        StartShown();
        EXPECT_EQ(ChosenIds(), kFixedIds) << path;
        dialog.reset();
    }
}

TEST_F(ShortcutConfig, KeepsAFileThatIsThere) {
    const std::string text = "; mine\n[ShortCut]\n1 = 37\n";
    WriteDeviceFile(kPanelSettings, text);
    StartShown();
    EXPECT_EQ(Contents(kPanelSettings), text);
    EXPECT_EQ(ChosenIds(), (PanelIds{37, 4, 17, 12, 18})) << "the missing ones are the factory's";
}

TEST_F(ShortcutConfig, KeepsAnEmptyFileThatIsThere) {
    WriteDeviceFile(kPanelSettings, "");
    StartShown();
    EXPECT_EQ(StoredIds(), kNoEntries);
    EXPECT_EQ(ChosenIds(), kFixedIds);
}

TEST_F(ShortcutConfig, TakesTheFactorysIdsInPlaceOfWhatIsNoNumber) {
    WriteDeviceFile(kPanelSettings, "[ShortCut]\n1=radio\n2=\n3=5 6\n4\n5=0x25\n");
    StartShown();
    EXPECT_EQ(ChosenIds(), (PanelIds{0, 4, 17, 12, 37}));
}

TEST_F(ShortcutConfig, TakesTheFactorysIdsInPlaceOfADamagedFile) {
    for (const std::string& bytes :
         {std::string("\0\0\0\xFF", 4), std::string("[ShortCut"), std::string(2 << 20, 'x')}) {
        WriteDeviceFile(kPanelSettings, bytes);
        StartShown();
        EXPECT_EQ(ChosenIds(), kFixedIds);
        EXPECT_EQ(Contents(kPanelSettings), bytes);
        dialog.reset();
    }
}

TEST_F(ShortcutConfig, ShowsTheSourceThatTheUserStoredAfterARestart) {
    StartShown();
    EXPECT_EQ(PictureOn(2), "settings_shortcut_menu_disc_audio_d");
    CLQIniReadWrite settings;
    settings.SetFileName(L"\\UserData\\ShortCut.ini");
    ASSERT_TRUE(settings.SetValue(L"ShortCut", L"2", 37, true));
    settings.Update();
    Restart();
    EXPECT_EQ(PictureOn(2), "settings_shortcut_menu_dab_n");
    EXPECT_EQ(ChosenIds(), (PanelIds{0, 37, 17, 12, 18}));
    Restart();
    EXPECT_EQ(StoredIds(), (Entries{"0", "37", "17", "12", "18"}));
}

TEST_F(ShortcutConfig, ShowsTheSourceThatTheUserStoredAtTheNextNews) {
    StartShown();
    StoreIds({37, 35, 15, 0, 8});
    EXPECT_EQ(ChosenIds(), kFixedIds);
    Notify(22);
    EXPECT_EQ(ChosenIds(), (PanelIds{37, 35, 15, 0, 8}));
    EXPECT_EQ(PictureOn(2), "settings_shortcut_menu_audio_off_n");
}

TEST_F(ShortcutConfig, LooksTheNumberUpInThePlaceOfTheSectionFirst) {
    WriteDeviceFile(kPanelSettings, "[ShortCut]\n1=37\n2=37\n[1]\nShortCut=35\n");
    StartShown();
    EXPECT_EQ(ChosenIds(), (PanelIds{35, 37, 17, 12, 18}));
}

TEST_F(ShortcutConfig, CutsAnIdToAByte) {
    StoreIds({300, 256, 293, -1, -219});
    StartShown();
    EXPECT_EQ(ChosenIds(), (PanelIds{44, 0, 37, 255, 37}));
    EXPECT_EQ(PictureOn(1), "") << "nothing has the number 44";
    EXPECT_EQ(PictureOn(2), "settings_shortcut_menu_tuner_n");
    EXPECT_EQ(PictureOn(3), "settings_shortcut_menu_dab_n");
    EXPECT_EQ(PictureOn(4), "");
    EXPECT_EQ(PictureOn(5), "settings_shortcut_menu_dab_n");
}

TEST_F(ShortcutConfig, CreatesAFolderOnRequest) {
    Start();
    dialog->CreatConfigDir(L"\\New\\Folder");
    EXPECT_TRUE(fs::is_directory(scene.DeviceFolder() / "New/Folder"));
    WriteDeviceFile("New/Folder/file", "untouched");
    dialog->CreatConfigDir(L"\\New\\Folder");
    EXPECT_EQ(Contents("New/Folder/file"), "untouched");
    dialog->CreatConfigDir(L"\\New\\Folder\\file");
    EXPECT_EQ(Contents("New/Folder/file"), "untouched");
    dialog->CreatConfigDir(L"");
    dialog->CreatConfigDir(std::wstring(100000, L'x'));
}

}  // namespace
}  // namespace korvane::test
