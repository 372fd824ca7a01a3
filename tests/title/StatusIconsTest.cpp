#include "tests/title/bench/TestStrip.h"

namespace korvane::test {
namespace {

class StatusIcons : public TestStrip {
  protected:
    StatusIcons() { Start(); }
};

TEST_F(StatusIcons, AreHiddenWhileTheRecordIsZero) {
    for (const wchar_t* name : {L"IconGPS", L"IconMute", L"IconBT"})
        EXPECT_EQ(ImageSeenAt(name), "");
}

TEST_F(StatusIcons, ShowThePositionFix) {
    for (const int value : {1, 2, 128, 255}) {
        Set(L"gps", value);
        EXPECT_EQ(ImageSeenAt(L"IconGPS"), "gps.lqi") << value;
        Set(L"gps", 0);
        EXPECT_EQ(ImageSeenAt(L"IconGPS"), "");
    }
}

TEST_F(StatusIcons, ShowThatTheSoundIsMuted) {
    for (const int value : {1, 2, 128, 255}) {
        Set(L"mute", value);
        EXPECT_EQ(ImageSeenAt(L"IconMute"), "mute.lqi") << value;
        Set(L"mute", 0);
        EXPECT_EQ(ImageSeenAt(L"IconMute"), "");
    }
}

TEST_F(StatusIcons, ShowTheStateOfBluetooth) {
    Set(L"btState", 1);
    EXPECT_EQ(ImageSeenAt(L"IconBT"), "title_icon_bt_gray.lqi");
    Set(L"btState", 2);
    EXPECT_EQ(ImageSeenAt(L"IconBT"), "title_icon_bt_active.lqi");
    Set(L"btState", 0);
    EXPECT_EQ(ImageSeenAt(L"IconBT"), "");
}

TEST_F(StatusIcons, KeepTheBluetoothIconInAnyOtherState) {
    const char* const images[] = {"", "title_icon_bt_gray.lqi", "title_icon_bt_active.lqi"};
    for (int known = 0; known <= 2; ++known) {
        for (const int other : {3, 4, 255}) {
            Set(L"btState", known);
            Set(L"btState", other);
            EXPECT_EQ(ImageSeenAt(L"IconBT"), images[known]) << other;
        }
    }
}

TEST_F(StatusIcons, FollowTheRecordOnlyWhenTold) {
    Record().gps = 1;
    scene.Advance(10000);
    EXPECT_EQ(ImageSeenAt(L"IconGPS"), "");
    dialog->UpdateAllIcon();
    EXPECT_EQ(ImageSeenAt(L"IconGPS"), "gps.lqi");
}

TEST_F(StatusIcons, TellTheParkingBrakeLive) {
    EXPECT_EQ(dialog->GetParkingStation(), 0);
    Record().parking = 1;
    EXPECT_EQ(dialog->GetParkingStation(), 1);
    Record().parking = 255;
    EXPECT_EQ(dialog->GetParkingStation(), 255);
}

class StatusIconsAtTheStart : public TestStrip {};

TEST_F(StatusIconsAtTheStart, ShowWhatTheRecordHolds) {
    Record().gps = 1;
    Record().mute = 1;
    Record().btState = 2;
    Record().guideAvail = 1;
    Record().frontRearAvail = 1;
    Record().rdsIconMask = kRdsIconReg;
    Start();
    EXPECT_EQ(ImageSeenAt(L"IconGPS"), "gps.lqi");
    EXPECT_EQ(ImageSeenAt(L"IconMute"), "mute.lqi");
    EXPECT_EQ(ImageSeenAt(L"IconBT"), "title_icon_bt_active.lqi");
    EXPECT_EQ(ImageSeenAt(L"IconREG"), "title_icon_reg_n.lqi");
    EXPECT_EQ(ImageSeenAt(L"BtnGuide"), "guide.lqi");
    EXPECT_EQ(ImageSeenAt(L"BtnToRear"), "rear.lqi");
}

class StripWithoutService : public TestStrip {
  protected:
    StripWithoutService() : TestStrip(TestService::Missing) { Start(); }
};

TEST_F(StripWithoutService, ShowsNoIconsAndNoButtons) {
    for (const wchar_t* name :
         {L"IconGPS", L"IconMute", L"IconBT", L"IconREG", L"IconPTY", L"IconAF", L"IconTA", L"IconTP",
          L"BtnTACancel", L"BtnToFront", L"BtnToRear", L"BtnGuide"})
        EXPECT_EQ(ImageSeenAt(name), "") << name;
}

TEST_F(StripWithoutService, TakesTheParkingBrakeAsReleased) {
    EXPECT_EQ(dialog->GetParkingStation(), 0);
}

TEST_F(StripWithoutService, ShowsTitles) {
    dialog->SetTitleInfo(L"Station one", false, 0);
    EXPECT_EQ(dialog->GetTitleInfo(), L"Station one");
}

class StripWithoutRecord : public TestStrip {
  protected:
    StripWithoutRecord() : TestStrip(TestService::WithoutRecord) { Start(); }
};

TEST_F(StripWithoutRecord, LeavesTheIconsAsTheLayoutHasThem) {
    for (int item = 0; item <= 40; ++item)
        Notify(item);
    EXPECT_EQ(ImageSeenAt(L"IconGPS"), "gps.lqi");
    EXPECT_EQ(ImageSeenAt(L"IconMute"), "mute.lqi");
    EXPECT_EQ(ImageSeenAt(L"IconBT"), "");
    EXPECT_EQ(ImageSeenAt(L"IconAF"), "");
}

TEST_F(StripWithoutRecord, OffersNoButtons) {
    for (const wchar_t* name : {L"BtnTACancel", L"BtnToFront", L"BtnToRear", L"BtnGuide"})
        EXPECT_EQ(ImageSeenAt(name), "") << name;
    dialog->SetSourceType(false);
    dialog->SetTitleBackBtnShow(true);
    dialog->SetTitleBackBtnShow(false);
    dialog->UpdateAllIcon();
    for (const wchar_t* name : {L"BtnTACancel", L"BtnToFront", L"BtnToRear", L"BtnGuide"})
        EXPECT_EQ(ImageSeenAt(name), "") << name;
}

TEST_F(StripWithoutRecord, TakesTheParkingBrakeAsSet) {
    EXPECT_EQ(dialog->GetParkingStation(), 1);
}

}  // namespace
}  // namespace korvane::test
