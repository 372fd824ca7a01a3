#include <filesystem>
#include <gtest/gtest.h>
#include <utility>
#include <vector>

#include "KorvaneEx.h"

#include "tests/demo/HeadUnitBench.h"
#include "tests/support/ReferenceImage.h"

namespace korvane::demo {

namespace {

constexpr Place kSettingsTile = {659, 368};
constexpr int kLanguagesOfPage = 6;
constexpr int kPageRow = 6;
constexpr int kRowPitch = 56;

/// The rows of the list of languages and the switches, from the top.
constexpr Place LanguageRow(int row) {
    return {180, 105 + kRowPitch * row};
}
constexpr Place SwitchRow(int row) {
    return {550, 124 + 96 * row};
}
enum SwitchIndex : int { kClock, kTrafficAnnouncements, kAlternativeFrequencies, kMute };

/// A language of the list: its id in the record, and what the settings are called in it.
struct Language {
    int id;
    const wchar_t* title;
};
constexpr Language kLanguages[] = {
    {5, L"Einstellungen"},
    {0, L"Settings"},
    {7, L"Ajustes"},
    {4, L"R\u00e9glages"},
    {6, L"Impostazioni"},
    {8, L"Instellingen"},
    {10, L"Ustawienia"},
    {17, L"Defini\u00e7\u00f5es"},
    {9, L"Inst\u00e4llningar"},
    {11, L"\u03a1\u03c5\u03b8\u03bc\u03af\u03c3\u03b5\u03b9\u03c2"},
    {1, L"\u8bbe\u7f6e"},
    {16, L"\u8a2d\u5b9a"},
};

class SettingsTest : public HeadUnitBench {
  protected:
    void OpenSettings() {
        Touch(kMenuButton);
        Touch(kSettingsTile);
    }
    void ReopenSettings() {
        Touch(kBackButton);
        Touch(kSettingsTile);
    }
    testing::AssertionResult LooksLike(const char* name) {
        return test::MatchesReference(CLQScreen::GetInstance()->GetScreenSurfHandle(), name);
    }
};

}  // namespace

TEST_F(SettingsTest, ComeFromTheMenuAndGoBackToIt) {
    OpenSettings();
    EXPECT_TRUE(scene_.Shows(L"Settings"));
    Touch(kBackButton);
    EXPECT_FALSE(scene_.Shows(L"Settings"));
    EXPECT_TRUE(scene_.Shows(L"Menu"));
}

TEST_F(SettingsTest, SpeakTheLanguageThatIsTouched) {
    OpenSettings();
    for (int page = 0; page < 2; ++page) {
        for (int row = 0; row < kLanguagesOfPage; ++row) {
            const Language& language = kLanguages[kLanguagesOfPage * page + row];
            Touch(LanguageRow(row));
            EXPECT_EQ(Get(L"language"), language.id);
            EXPECT_TRUE(scene_.Shows(language.title)) << language.id;
        }
        Touch(LanguageRow(kPageRow));
    }
    Touch(LanguageRow(1));
    EXPECT_TRUE(scene_.Shows(L"Settings")) << "back on the first page";
}

TEST_F(SettingsTest, TakeATouchForTheLanguageBetweenWhoseLinesItIs) {
    OpenSettings();
    for (const int offset : {-kRowPitch / 2 + 2, kRowPitch / 2 - 2}) {
        for (int row = 0; row < kLanguagesOfPage; ++row) {
            const Place at = LanguageRow(row);
            Touch({at.x, at.y + offset});
            EXPECT_EQ(Get(L"language"), kLanguages[row].id) << offset;
        }
    }
}

TEST_F(SettingsTest, KeepTheLanguageThatIsTouchedAgain) {
    OpenSettings();
    const std::vector<std::uint32_t> before = scene_.Pixels();
    Touch(LanguageRow(1));
    EXPECT_EQ(Get(L"language"), 0);
    EXPECT_TRUE(scene_.Pixels() == before);
}

TEST_F(SettingsTest, OpenOnThePageOfTheLanguage) {
    Set(L"language", 9);
    OpenSettings();
    Touch(LanguageRow(3));
    EXPECT_EQ(Get(L"language"), 11);
    Touch(LanguageRow(kPageRow));
    Touch(LanguageRow(0));
    EXPECT_EQ(Get(L"language"), 5);
    ReopenSettings();
    Touch(LanguageRow(3));
    EXPECT_EQ(Get(L"language"), 4);
}

TEST_F(SettingsTest, FollowALanguageThatSomebodyElseChose) {
    OpenSettings();
    Set(L"language", 5);
    EXPECT_TRUE(LooksLike("demo-settings-german"));
    Set(L"language", 11);
    EXPECT_TRUE(LooksLike("demo-settings-greek")) << "on the other page";
}

TEST_F(SettingsTest, SelectTheSameLanguageForEachOfItsIds) {
    Set(L"language", 1);
    OpenSettings();
    const std::vector<std::uint32_t> chinese = scene_.Pixels();
    Set(L"language", 2);
    EXPECT_TRUE(scene_.Pixels() == chinese);
    Set(L"language", 0);
    ReopenSettings();
    const std::vector<std::uint32_t> english = scene_.Pixels();
    Set(L"language", 3);
    EXPECT_TRUE(scene_.Pixels() == english) << "an id without a table";
}

TEST_F(SettingsTest, SwitchTheFormOfTheClock) {
    OpenSettings();
    EXPECT_TRUE(scene_.ShowsControl(L"St24HR"));
    Touch(SwitchRow(kClock));
    EXPECT_EQ(Get(L"clock24h"), 0);
    EXPECT_FALSE(scene_.ShowsControl(L"St24HR"));
    Touch(SwitchRow(kClock));
    EXPECT_EQ(Get(L"clock24h"), 1);
    EXPECT_TRUE(scene_.ShowsControl(L"St24HR"));
}

TEST_F(SettingsTest, SwitchWhatTheRecordHolds) {
    OpenSettings();
    for (const auto& [row, field] : std::vector<std::pair<int, const wchar_t*>>{
             {kTrafficAnnouncements, L"taOn"}, {kAlternativeFrequencies, L"afState"}, {kMute, L"mute"}}) {
        const int before = Get(field);
        Touch(SwitchRow(row));
        EXPECT_EQ(Get(field), 1 - before) << row;
        Touch(SwitchRow(row));
        EXPECT_EQ(Get(field), before) << row;
    }
}

TEST_F(SettingsTest, SwitchOffASearchForAlternativeFrequencies) {
    Set(L"afState", 2);
    OpenSettings();
    Touch(SwitchRow(kAlternativeFrequencies));
    EXPECT_EQ(Get(L"afState"), 0);
}

TEST_F(SettingsTest, ShowWhatIsOnAndWhatIsPressed) {
    OpenSettings();
    EXPECT_TRUE(LooksLike("demo-settings"));
    Set(L"mute", 1);
    Set(L"clock24h", 0);
    const Place traffic = SwitchRow(kTrafficAnnouncements);
    scene_.Press(traffic.x, traffic.y);
    EXPECT_TRUE(LooksLike("demo-settings-switch-pressed"));
    scene_.Release(traffic.x, traffic.y);
    const Place spanish = LanguageRow(2);
    scene_.Press(spanish.x, spanish.y);
    EXPECT_TRUE(LooksLike("demo-settings-language-pressed"));
}

TEST_F(SettingsTest, PaintNothingForWhatTheyDoNotShow) {
    OpenSettings();
    CLQScreen::GetInstance()->ResetCounters();
    Set(L"usbPresent", 0);
    EXPECT_EQ(CLQScreen::GetInstance()->GetCounters().paints, 0u);
}

TEST_F(SettingsTest, GoThroughTheSwitchesByTheKeys) {
    OpenSettings();
    scene_.Key(VK_DOWN);
    scene_.Key(VK_DOWN);
    scene_.Key(VK_RETURN);
    SetCursorState(false);
    EXPECT_EQ(Get(L"taOn"), 0);
}

TEST(SettingsOnALargeScreen, FindTheirRowsInTheMiddle) {
    test::DemoScene scene;
    CLQScreen* const screen = CLQScreen::GetInstance();
    screen->Close();
    ASSERT_TRUE(screen->Open("memory", 1000, 700, L"large"));
    constexpr Place kCorner = {100, 110};
    MainApplication mainApplication(MainApplication::KeyBeep::Silent);
    ASSERT_TRUE(mainApplication.Start());
    HeadUnit headUnit;
    headUnit.Create(kCorner.x, kCorner.y);
    scene.Pump();
    for (const Place& place : {kMenuButton, kSettingsTile, LanguageRow(3), SwitchRow(kMute)})
        scene.Touch(kCorner.x + place.x, kCorner.y + place.y);
    tools::SystemService service;
    EXPECT_EQ(service.Value(L"language", -1), 4);
    EXPECT_EQ(service.Value(L"mute", -1), 1);
}

TEST(SettingsWithoutMuch, ComeUpWithoutTheServiceAndTheMainApplication) {
    test::DemoScene scene;
    std::filesystem::remove_all(scene.DeviceFolder() / "NandFlash/Application/Bin");
    HeadUnit headUnit;
    headUnit.Create(0, 0);
    scene.Pump();
    for (const Place& place : {kMenuButton, kSettingsTile, LanguageRow(3), SwitchRow(kMute)})
        scene.Touch(place.x, place.y);
    EXPECT_TRUE(scene.Shows(L"Settings"));
}

}  // namespace korvane::demo
