#include <filesystem>
#include <gtest/gtest.h>
#include <string>

#include "KorvaneEx.h"

#include "demo/headunit/HeadUnit.h"
#include "demo/headunit/ScreenSlide.h"
#include "demo/mainapp/MainApplication.h"
#include "tests/demo/DemoScene.h"
#include "tests/demo/HeadUnitBench.h"
#include "tools/systemservice/SystemService.h"

namespace korvane::demo {

namespace {

constexpr unsigned kSecondMs = 1000;

constexpr Place kSourcesButton = {688, 224};
constexpr Place kZoneButton = {617, 30};
constexpr Place kGuideButton = {667, 30};
constexpr Place kTrafficCancelButton = {558, 30};
constexpr Place kPanelBackButton = {400, 300};
/// The shortcuts from the left: tuner, disc, USB, Bluetooth and navigation, as from the factory.
constexpr Place ShortcutButton(int number) {
    return {88 + 156 * (number - 1), 137};
}

class HeadUnitTest : public HeadUnitBench {
  protected:
    void ChooseShortcut(int number) {
        Touch(kSourcesButton);
        Touch(ShortcutButton(number));
    }
    bool ShowsRadio() { return scene_.Shows(L"87.5"); }
    /// The caption of a shortcut button, by its number from the left.
    std::wstring ShortcutCaption(int number) {
        auto* const button =
            dynamic_cast<CLQButton*>(scene_.FindControl((L"ShortCutBtn" + std::to_wstring(number)).c_str()));
        auto* const caption = button ? dynamic_cast<CLQTextElement*>(button->GetGUIElement(1)) : nullptr;
        return caption ? caption->GetText() : L"";
    }
    bool ShowsPanel() { return scene_.ShowsControl(L"ShortCutBtn1"); }
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

TEST_F(HeadUnitTest, NamesTheShortcutsAsTheFactoryHasThem) {
    Touch(kSourcesButton);
    EXPECT_EQ(ShortcutCaption(1), L"Radio");
    EXPECT_EQ(ShortcutCaption(2), L"Disc");
    EXPECT_EQ(ShortcutCaption(5), L"Navigation");
    Set(L"language", 5);
    EXPECT_EQ(ShortcutCaption(3),
              CLQLangManager::GetInstance()->GetString(L"settings_shortcut_menu_usb_audio"));
}

TEST_F(HeadUnitTest, NamesAShortcutThatTheUserChose) {
    CLQIniReadWrite shortcuts;
    shortcuts.SetFileName(L"\\NandFlash\\Data\\ShortCut.ini");
    shortcuts.SetValue(L"ShortCut", L"4", 18, true);
    shortcuts.Update();
    Touch(kSourcesButton);
    EXPECT_EQ(ShortcutCaption(4), L"TV");
}

TEST_F(HeadUnitTest, SlidesToTheSourceOfAShortcut) {
    const unsigned start = GetTickCount();
    ChooseShortcut(2);
    EXPECT_EQ(GetTickCount() - start, 80u * ScreenSlide::kFrames);
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

TEST_F(HeadUnitTest, ClosesTheShortcutsWithTheBackButtonFirst) {
    Set(L"source", 12);
    Touch(kSourcesButton);
    ASSERT_TRUE(ShowsPanel());
    Touch(kBackButton);
    EXPECT_FALSE(ShowsPanel());
    EXPECT_EQ(Get(L"source"), 12);
    Touch(kBackButton);
    EXPECT_EQ(Get(L"source"), 0);
}

TEST_F(HeadUnitTest, ShowsNoSourceThatIsNotThere) {
    Set(L"discAudioPresent", 0);
    ChooseShortcut(2);
    EXPECT_EQ(Get(L"source"), 0);
    EXPECT_TRUE(ShowsRadio());
}

TEST_F(HeadUnitTest, SaysThatTheDeviceOfASourceIsNotThere) {
    Set(L"tvPresent", 0);
    Set(L"source", 18);
    EXPECT_TRUE(scene_.Shows(L"Not connected"));
    Set(L"tvPresent", 1);
    EXPECT_FALSE(scene_.Shows(L"Not connected"));
    Touch(kBackButton);
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

TEST_F(HeadUnitTest, TellsForThreeSecondsInWhichZoneItPlays) {
    Touch(kZoneButton);
    EXPECT_TRUE(scene_.Shows(L"Rear seats"));
    scene_.Advance(3 * kSecondMs - 1);
    EXPECT_TRUE(scene_.Shows(L"Rear seats"));
    scene_.Advance(1);
    EXPECT_FALSE(scene_.Shows(L"Rear seats"));
    scene_.Advance(kSecondMs);
    EXPECT_TRUE(scene_.Shows(L"Radio"));
}

TEST_F(HeadUnitTest, ShowsAPictureInPlaceOfTheTitleWhenAPhoneComes) {
    Set(L"btState", 2);
    EXPECT_TRUE(scene_.Shows(L"Radio")) << "the phone was there before";
    Set(L"btState", 0);
    EXPECT_TRUE(scene_.Shows(L"Radio"));
    Set(L"btState", 1);
    EXPECT_FALSE(scene_.Shows(L"Radio"));
    scene_.Advance(4 * kSecondMs);
    EXPECT_TRUE(scene_.Shows(L"Radio"));
}

TEST_F(HeadUnitTest, DropsANoticeForTheTitleOfANewSource) {
    Touch(kZoneButton);
    Set(L"source", 4);
    EXPECT_FALSE(scene_.Shows(L"Rear seats"));
    scene_.Advance(4 * kSecondMs);
    EXPECT_TRUE(scene_.Shows(L"Disc"));
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

TEST(HeadUnitWithoutMuch, ComesUpWithoutTheServiceAndTheMainApplication) {
    test::DemoScene scene;
    std::filesystem::remove_all(scene.DeviceFolder() / "NandFlash/Application/Bin");
    HeadUnit headUnit;
    headUnit.Create(0, 0);
    scene.Pump();
    EXPECT_TRUE(scene.Shows(L"Radio"));
    EXPECT_FALSE(scene.ShowsControl(L"IconGPS"));
    scene.Touch(kSourcesButton.x, kSourcesButton.y);
    EXPECT_TRUE(scene.ShowsControl(L"ShortCutBtn1"));
    scene.Touch(ShortcutButton(1).x, ShortcutButton(1).y);
    EXPECT_FALSE(scene.ShowsControl(L"ShortCutBtn1"));
}

TEST(HeadUnitWithoutMuch, ComesUpWithoutLayoutsAndLanguages) {
    test::DemoScene scene;
    for (const char* const folder : {"Layout", "Language"})
        std::filesystem::remove_all(scene.DeviceFolder() / "NandFlash/Application/Resource" / folder);
    MainApplication mainApplication(MainApplication::KeyBeep::Silent);
    ASSERT_TRUE(mainApplication.Start());
    HeadUnit headUnit;
    headUnit.Create(0, 0);
    scene.Pump();
    EXPECT_TRUE(scene.Shows(L"87.5"));
    scene.Touch(kSourcesButton.x, kSourcesButton.y);
    tools::SystemService service;
    ASSERT_TRUE(service.SetValue(L"source", 4));
    scene.Pump();
    EXPECT_FALSE(scene.Shows(L"87.5"));
}

}  // namespace korvane::demo
