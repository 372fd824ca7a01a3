#include <gtest/gtest.h>
#include <optional>
#include <string>

#include "KorvaneEx.h"

#include "demo/headunit/HeadUnit.h"
#include "demo/mainapp/MainApplication.h"
#include "tests/demo/DemoScene.h"
#include "tools/systemservice/SystemService.h"

namespace korvane::demo {

namespace {

constexpr unsigned kSecondMs = 1000;

/// Where on the screen things are.
struct Place {
    int x;
    int y;
};
constexpr Place kSourcesButton = {688, 224};
constexpr Place kBackButton = {100, 30};
constexpr Place kZoneButton = {617, 30};
constexpr Place kGuideButton = {667, 30};
constexpr Place kTrafficCancelButton = {558, 30};
constexpr Place kPanelBackButton = {400, 300};
/// The shortcuts from the left: tuner, disc, USB, Bluetooth and navigation, as from the factory.
constexpr Place ShortcutButton(int number) {
    return {88 + 156 * (number - 1), 137};
}

/// The head unit with the main application in its own process.
class HeadUnitTest : public testing::Test {
  protected:
    HeadUnitTest() : mainApplication_(MainApplication::KeyBeep::Silent) {
        mainApplication_.Start();
        headUnit_.emplace();
        headUnit_->Create(0, 0);
        scene_.Pump();
    }

    void Touch(Place place) { scene_.Touch(place.x, place.y); }
    void Set(const wchar_t* field, int value) {
        ASSERT_TRUE(service_.SetValue(field, value));
        scene_.Pump();
    }
    int Get(const wchar_t* field) { return service_.Value(field, -1); }
    void ChooseShortcut(int number) {
        Touch(kSourcesButton);
        Touch(ShortcutButton(number));
    }
    bool ShowsRadio() { return scene_.Shows(L"87.5"); }
    bool ShowsPanel() { return scene_.ShowsControl(L"ShortCutBtn1"); }

    test::DemoScene scene_;
    tools::SystemService service_;
    MainApplication mainApplication_;
    std::optional<HeadUnit> headUnit_;
};

}  // namespace

TEST_F(HeadUnitTest, StartsWithTheRadioAndTheClock) {
    EXPECT_TRUE(ShowsRadio());
    EXPECT_TRUE(scene_.Shows(L"Radio"));
    EXPECT_TRUE(scene_.Shows(L"10:05"));
    EXPECT_FALSE(ShowsPanel());
    EXPECT_FALSE(scene_.ShowsControl(L"BtnBack"));
    EXPECT_TRUE(scene_.ShowsControl(L"IconGPS"));
    EXPECT_FALSE(scene_.ShowsControl(L"IconMute"));
}

TEST_F(HeadUnitTest, ShowsWhatTheSystemRecordSays) {
    Set(L"mute", 1);
    EXPECT_TRUE(scene_.ShowsControl(L"IconMute"));
    Set(L"gps", 0);
    EXPECT_FALSE(scene_.ShowsControl(L"IconGPS"));
    Set(L"taActive", 1);
    EXPECT_TRUE(scene_.Shows(L"Traffic Information Received..."));
    EXPECT_FALSE(scene_.Shows(L"Radio"));
}

TEST_F(HeadUnitTest, OpensTheShortcutsAndClosesThemAgain) {
    Touch(kSourcesButton);
    EXPECT_TRUE(ShowsPanel());
    EXPECT_TRUE(scene_.ShowsControl(L"Button_shortcutback"));
    Touch(kPanelBackButton);
    EXPECT_FALSE(ShowsPanel());
    EXPECT_FALSE(scene_.ShowsControl(L"Button_shortcutback"));
    EXPECT_TRUE(ShowsRadio());
}

TEST_F(HeadUnitTest, SwitchesToTheSourceOfAShortcut) {
    ChooseShortcut(2);
    EXPECT_EQ(Get(L"source"), 4);
    EXPECT_FALSE(ShowsPanel());
    EXPECT_FALSE(ShowsRadio());
    EXPECT_TRUE(scene_.Shows(L"Disc"));
    EXPECT_TRUE(scene_.Shows(L"Now playing"));
}

TEST_F(HeadUnitTest, ComesBackToTheRadioWithTheBackButton) {
    Set(L"source", 4);
    EXPECT_TRUE(scene_.ShowsControl(L"BtnBack"));
    Touch(kBackButton);
    EXPECT_EQ(Get(L"source"), 0);
    EXPECT_TRUE(ShowsRadio());
    EXPECT_FALSE(scene_.ShowsControl(L"BtnBack"));
}

TEST_F(HeadUnitTest, ShowsNoSourceThatIsNotThere) {
    Set(L"discAudioPresent", 0);
    ChooseShortcut(2);
    EXPECT_EQ(Get(L"source"), 0);
    EXPECT_TRUE(ShowsRadio());
}

TEST_F(HeadUnitTest, FollowsASourceThatAnotherProcessChose) {
    Set(L"source", 12);
    EXPECT_TRUE(scene_.Shows(L"Phone"));
    Set(L"source", 37);
    EXPECT_TRUE(scene_.Shows(L"DAB radio"));
    EXPECT_TRUE(ShowsRadio());
}

TEST_F(HeadUnitTest, KeepsItsScreenForASourceThatItDoesNotKnow) {
    Set(L"source", 4);
    Set(L"source", 200);
    EXPECT_TRUE(scene_.Shows(L"Disc"));
}

TEST_F(HeadUnitTest, StopsSeekingWhenTheRadioIsLeft) {
    scene_.Press(340, 280);
    scene_.Release(340, 160);
    ASSERT_TRUE(scene_.Shows(L"Seeking up, touch to stop"));
    Set(L"source", 4);
    Set(L"source", 0);
    EXPECT_TRUE(scene_.Shows(L"Swipe the wheel to seek"));
}

TEST_F(HeadUnitTest, CountsThePlayTimeOfAMedium) {
    EXPECT_FALSE(scene_.Shows(L"0:00"));
    Set(L"source", 6);
    EXPECT_TRUE(scene_.Shows(L"0:00"));
    scene_.Advance(61 * kSecondMs);
    EXPECT_TRUE(scene_.Shows(L"1:01"));
    Set(L"source", 4);
    EXPECT_TRUE(scene_.Shows(L"0:00"));
    Set(L"source", 0);
    EXPECT_FALSE(scene_.Shows(L"0:00"));
}

TEST_F(HeadUnitTest, GoesToTheNavigationWithTheGuideButton) {
    Touch(kGuideButton);
    EXPECT_EQ(Get(L"source"), 17);
    EXPECT_TRUE(scene_.Shows(L"Navigation"));
}

TEST_F(HeadUnitTest, SwitchesTheZoneAndBack) {
    EXPECT_TRUE(scene_.ShowsControl(L"BtnToRear"));
    Touch(kZoneButton);
    EXPECT_EQ(Get(L"rearZone"), 1);
    EXPECT_TRUE(scene_.ShowsControl(L"BtnToFront"));
    EXPECT_FALSE(scene_.ShowsControl(L"BtnToRear"));
    Touch(kZoneButton);
    EXPECT_EQ(Get(L"rearZone"), 0);
    EXPECT_TRUE(scene_.ShowsControl(L"BtnToRear"));
}

TEST_F(HeadUnitTest, EndsATrafficAnnouncementWithItsButton) {
    Set(L"taActive", 1);
    Touch(kTrafficCancelButton);
    EXPECT_EQ(Get(L"taActive"), 0);
    EXPECT_TRUE(scene_.Shows(L"Radio"));
}

TEST_F(HeadUnitTest, SpeaksAnotherLanguageAtOnce) {
    Set(L"language", 5);
    EXPECT_FALSE(scene_.Shows(L"Swipe the wheel to seek"));
    Set(L"source", 14);
    const std::wstring german = CLQLangManager::GetInstance()->GetString(L"settings_shortcut_menu_aux2");
    EXPECT_TRUE(scene_.Shows(german));
    Set(L"language", 0);
    EXPECT_TRUE(scene_.Shows(L"AUX 2"));
}

TEST_F(HeadUnitTest, PaintsNothingWhileNothingHappens) {
    CLQScreen::GetInstance()->ResetCounters();
    scene_.Advance(30 * kSecondMs);
    EXPECT_EQ(CLQScreen::GetInstance()->GetCounters().paints, 0u);
}

}  // namespace korvane::demo
