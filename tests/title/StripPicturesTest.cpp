#include "KorvaneEx.h"
#include "platform/Simulation.h"

#include "service/SysInfoService.h"
#include "tests/demo/DemoScene.h"
#include "tests/support/ReferenceImage.h"

namespace korvane::test {
namespace {

// Texts of the device's language tables.
constexpr int kTextDisc = 3;
constexpr int kTextBack = 20;
constexpr int kTextRadio = 31;

/// The strip as it is delivered: the device's layouts, pictures and texts, over the background of a screen.
class StripPictures : public testing::Test {
  protected:
    StripPictures() {
        link_.Load();
        setValue_ = reinterpret_cast<decltype(&LQ_SetSetupValue)>(
            reinterpret_cast<void (*)()>(link_.pfnSetSetupValue));
        screen.Create(0, 0, 800, 480);
        screen.SetBkgSurf(L"SourceBkg.lqi");
        strip = std::make_unique<CLQTitleDialog>();
        strip->Create(0, 0, 800, 480);
        strip->OnInit();
        scene.Pump();
    }
    ~StripPictures() override {
        strip.reset();
        link_.Unload();
    }

    void Set(const wchar_t* field, int value) {
        ASSERT_EQ(setValue_(field, value), 1);
        scene.Pump();
    }
    void Speak(const wchar_t* table, int language) {
        ASSERT_TRUE(CLQLangManager::GetInstance()->LoadLanguage(table));
        Set(L"language", language);
    }
    void SetTime(int hour, int minute) {
        SYSTEMTIME time = {};
        time.wYear = 2024;
        time.wMonth = 3;
        time.wDay = 15;
        time.wHour = static_cast<WORD>(hour);
        time.wMinute = static_cast<WORD>(minute);
        UseManualClock(GetTickCount(), time);
        strip->UpdateAllIcon();
    }

    testing::AssertionResult Matches(const std::string& name, int height = 60) {
        scene.Pump();
        constexpr int kWidth = 800;
        CLQSurfHandle picture =
            CLQSurfManager::GetInstance()->CreateSurface(kWidth, height, eSurface_XRGB8888, true);
        picture.BitBlt(CLQScreen::GetInstance()->GetScreenSurfHandle(), 0, 0, kWidth, height, 0, 0);
        return MatchesReference(picture, name);
    }

    DemoScene scene;
    CLQWindow screen;
    std::unique_ptr<CLQTitleDialog> strip;

  private:
    CLQShareMemLink link_;
    decltype(&LQ_SetSetupValue) setValue_ = nullptr;
};

TEST_F(StripPictures, OfATitle) {
    strip->SetTitleInfo(kTextRadio, true, 0);
    EXPECT_TRUE(Matches("strip-title"));
}

TEST_F(StripPictures, OfEveryIconAtWork) {
    for (const wchar_t* field :
         {L"gps", L"mute", L"regOn", L"ptyOn", L"afState", L"taOn", L"tpOn", L"clock24h"})
        Set(field, 1);
    Set(L"btState", 2);
    Set(L"rdsIconMask", 31);
    strip->SetTitleInfo(kTextRadio, true, 0);
    EXPECT_TRUE(Matches("strip-icons-on"));
}

TEST_F(StripPictures, OfEveryIconAtRest) {
    Set(L"btState", 1);
    Set(L"rdsIconMask", 31);
    strip->SetTitleInfo(kTextRadio, true, 0);
    EXPECT_TRUE(Matches("strip-icons-off"));
}

TEST_F(StripPictures, OfASearchForFrequencies) {
    Set(L"rdsIconMask", kRdsIconAf | kRdsIconTp);
    Set(L"afState", 2);
    EXPECT_TRUE(Matches("strip-searching-1"));
    scene.Advance(500);
    EXPECT_TRUE(Matches("strip-searching-2"));
    scene.Advance(500);
    EXPECT_TRUE(Matches("strip-searching-1"));
}

TEST_F(StripPictures, OfTheClockInBothForms) {
    SetTime(0, 7);
    EXPECT_TRUE(Matches("strip-clock-after-midnight"));
    SetTime(23, 48);
    EXPECT_TRUE(Matches("strip-clock-evening"));
    Set(L"clock24h", 1);
    EXPECT_TRUE(Matches("strip-clock-24-hours"));
}

TEST_F(StripPictures, OfTheZoneAndGuideButtons) {
    Set(L"frontRearAvail", 1);
    Set(L"guideAvail", 1);
    strip->SetTitleInfo(kTextRadio, true, 0);
    EXPECT_TRUE(Matches("strip-buttons-rear"));
    strip->SetSourceType(false);
    scene.Press(615, 30);
    EXPECT_TRUE(Matches("strip-buttons-front-pressed"));
}

TEST_F(StripPictures, OfAMediumThatPlays) {
    strip->SetTitleInfo(kTextDisc, true, 0);
    strip->EnablePlayTime(true);
    strip->SetPlayTime(L"1:23:45", false);
    EXPECT_TRUE(Matches("strip-play-time"));
}

TEST_F(StripPictures, OfALongTitleThatScrollsBesideThePlayTime) {
    strip->SetTitleInfo(L"Symphony No. 9 in D minor, Op. 125, fourth movement", true, 0);
    strip->EnablePlayTime(true);
    strip->SetPlayTime(L"12:07", false);
    EXPECT_TRUE(Matches("strip-long-title"));
    scene.Advance(2000);
    EXPECT_TRUE(Matches("strip-long-title-scrolled"));
}

TEST_F(StripPictures, OfAnImageInPlaceOfTheTitle) {
    strip->SetTitleInfo(kTextRadio, true, 0);
    strip->SetTitleIcon(L"title_phone_connected.lqi", 3000);
    EXPECT_TRUE(Matches("strip-title-icon"));
}

TEST_F(StripPictures, OfATrafficAnnouncement) {
    strip->SetTitleInfo(kTextRadio, true, 0);
    Set(L"taActive", 1);
    EXPECT_TRUE(Matches("strip-traffic"));
    Speak(L"German.lng", 5);
    EXPECT_TRUE(Matches("strip-traffic-german"));
    Speak(L"Greek.lng", 11);
    EXPECT_TRUE(Matches("strip-traffic-greek"));
    Speak(L"Japanese.lng", 16);
    EXPECT_TRUE(Matches("strip-traffic-japanese"));
}

TEST_F(StripPictures, OfTheBackButton) {
    strip->SetTitleBackBtnID(kTextBack);
    strip->SetTitleInfo(kTextDisc, true, 0);
    Set(L"taActive", 1);
    strip->SetTitleBackBtnShow(true);
    EXPECT_TRUE(Matches("strip-back"));
    Speak(L"Greek.lng", 11);
    scene.Press(90, 30);
    EXPECT_TRUE(Matches("strip-back-greek-pressed"));
}

TEST_F(StripPictures, OfAChineseStrip) {
    Speak(L"Chinese.lng", 1);
    Set(L"btState", 2);
    strip->SetTitleInfo(kTextRadio, true, 0);
    SetTime(15, 30);
    EXPECT_TRUE(Matches("strip-chinese"));
}

TEST_F(StripPictures, OfTheOpenPanel) {
    strip->SetTitleInfo(kTextRadio, true, 0);
    Set(L"discAudioPresent", 1);
    Set(L"btState", 2);
    strip->GetShortCurShadow()->SetShow(true);
    strip->GetShortCutControl()->SetShow(true);
    EXPECT_TRUE(Matches("strip-panel", 480));
}

}  // namespace
}  // namespace korvane::test
