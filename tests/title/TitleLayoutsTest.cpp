#include "tests/title/bench/ExerciseStrip.h"
#include "tests/title/bench/TestStrip.h"

namespace korvane::test {
namespace {

class TitleLayouts : public TestStrip {
  protected:
    void SwitchEverythingOn() {
        Set(L"gps", 1);
        Set(L"mute", 1);
        Set(L"btState", 2);
        Set(L"rdsIconMask", 31);
        Set(L"guideAvail", 1);
        Set(L"frontRearAvail", 1);
    }
};

/// What is seen of a strip in which everything is on.
struct Sight {
    const char* name;
    const char* image;
};

constexpr Sight kSights[] = {
    {"IconGPS", "gps.lqi"},
    {"IconMute", "mute.lqi"},
    {"IconBT", "title_icon_bt_active.lqi"},
    {"IconREG", "title_icon_reg_n.lqi"},
    {"IconPTY", "title_icon_pty_n.lqi"},
    {"IconAF", "title_icon_af_n.lqi"},
    {"IconTA", "title_icon_ta_n.lqi"},
    {"IconTP", "title_icon_tp_n.lqi"},
    {"BtnGuide", "guide.lqi"},
};

TEST_F(TitleLayouts, MayLackEachControl) {
    for (const std::string& missing : TitleLayout::Names()) {
        SCOPED_TRACE(missing);
        TitleLayout layout;
        layout.without = {missing};
        WriteTitleLayout(layout);
        Start();
        ASSERT_EQ(Find(std::wstring(missing.begin(), missing.end()).c_str()), nullptr);
        SwitchEverythingOn();
        for (const Sight& sight : kSights) {
            const std::string name = sight.name;
            const std::string expected = name == missing ? "no control" : sight.image;
            EXPECT_EQ(ImageSeenAt(std::wstring(name.begin(), name.end()).c_str()), expected);
        }
        dialog->SetTitleInfo(L"Station one", true, 1000);
        EXPECT_EQ(dialog->GetTitleInfo(), missing == "StInfo" ? L"" : L"Station one");
        ExerciseStrip(*dialog, scene);
    }
}

TEST_F(TitleLayouts, MayHaveEachControlAsOneOfAnotherClass) {
    for (const std::string& name : TitleLayout::Names()) {
        for (const char* kind : {"button", "static", "image", "slider", "group"}) {
            SCOPED_TRACE(name + " as " + kind);
            TitleLayout layout;
            layout.kinds[name] = kind;
            WriteTitleLayout(layout);
            Start();
            SwitchEverythingOn();
            ExerciseStrip(*dialog, scene);
        }
    }
}

TEST_F(TitleLayouts, KeepTheZoneButtonsAsTheyAreUnlessBothAreThere) {
    TitleLayout layout;
    layout.without = {"BtnToFront"};
    WriteTitleLayout(layout);
    Start();
    EXPECT_TRUE(Find(L"BtnToRear")->IsShow());
    layout.without = {"BtnToRear"};
    WriteTitleLayout(layout);
    Start();
    EXPECT_TRUE(Find(L"BtnToFront")->IsShow());
}

TEST_F(TitleLayouts, ShowTheTitleDuringAnAnnouncementThatCannotBeCancelled) {
    TitleLayout layout;
    layout.without = {"BtnTACancel"};
    WriteTitleLayout(layout);
    Start();
    Set(L"taActive", 1);
    EXPECT_TRUE(Find(L"StInfo")->IsOwnerShow());
    EXPECT_FALSE(Find(L"StTAText")->IsOwnerShow());
}

TEST_F(TitleLayouts, GiveThePlayTimeAndTheTrafficTextTheLooksOfTheTitle) {
    Start();
    const _LQRect info = Find(L"StInfo")->GetScreenRect();
    const _LQRect traffic = Find(L"StTAText")->GetScreenRect();
    EXPECT_EQ(traffic.left, info.left);
    EXPECT_EQ(traffic.top, info.top);
    EXPECT_EQ(traffic.right - traffic.left, kInfoWidth);
    EXPECT_EQ(traffic.bottom, info.bottom);
    EXPECT_FALSE(Find(L"StTAText")->IsShow());
    int width;
    int height;
    Find(L"StPlayTime")->GetSize(width, height);
    EXPECT_EQ(width, 162);
    EXPECT_EQ(height, kInfoHeight);
    EXPECT_FALSE(Find(L"StPlayTime")->IsShow());
}

TEST_F(TitleLayouts, GiveThePlayTimeTheWidthThatWasSetBefore) {
    dialog = std::make_unique<CLQTitleDialog>();
    dialog->SetPlayTimeWidth(90);
    dialog->Create(0, 0, 800, 480);
    dialog->OnInit();
    int width;
    int height;
    Find(L"StPlayTime")->GetSize(width, height);
    EXPECT_EQ(width, 90);
    EXPECT_EQ(height, kInfoHeight);
}

TEST_F(TitleLayouts, TellTheDefaultPosition) {
    dialog = std::make_unique<CLQTitleDialog>();
    int x;
    int y;
    dialog->GetTitleDefaultPos(x, y);
    EXPECT_EQ(x, 0);
    EXPECT_EQ(y, 19);
    dialog->MoveTitleToDefaultPos();
    EXPECT_EQ(dialog->GetGpTitle(), nullptr);
    dialog->Create(0, 0, 800, 480);
    dialog->OnInit();
    dialog->GetTitleDefaultPos(x, y);
    EXPECT_EQ(x, kStripX);
    EXPECT_EQ(y, kStripY);
}

TEST_F(TitleLayouts, BringTheStripBackToItsDefaultPosition) {
    Start();
    dialog->GetGpTitle()->MoveTo(100, 200);
    dialog->GetGpTitle()->SetShow(false);
    dialog->MoveTitleToDefaultPos();
    EXPECT_TRUE(dialog->GetGpTitle()->IsOwnerShow());
    const _LQRect strip = dialog->GetGpTitle()->GetScreenRect();
    EXPECT_EQ(strip.left, kStripX);
    EXPECT_EQ(strip.top, kStripY);
    const _LQRect info = Find(L"StInfo")->GetScreenRect();
    EXPECT_EQ(info.left, kInfoX);
    EXPECT_EQ(info.top, kInfoY);
}

TEST_F(TitleLayouts, TellTheDefaultPositionOnTheScreen) {
    dialog = std::make_unique<CLQTitleDialog>();
    dialog->Create(20, 30, 700, 400);
    dialog->OnInit();
    int x;
    int y;
    dialog->GetTitleDefaultPos(x, y);
    EXPECT_EQ(x, kStripX + 20);
    EXPECT_EQ(y, kStripY + 30);
    dialog->MoveTitleToDefaultPos();
    const _LQRect strip = dialog->GetGpTitle()->GetScreenRect();
    EXPECT_EQ(strip.left, kStripX + 40) << "which is taken as one in the window";
    EXPECT_EQ(strip.top, kStripY + 60);
}

TEST_F(TitleLayouts, GiveTheStripABackground) {
    Start();
    dialog->SetTitleBkgSurf(nullptr);
    EXPECT_EQ(ImageSeenAt(dialog->GetGpTitle()), "");
    dialog->SetTitleBkgSurf(L"strip.lqi");
    EXPECT_EQ(ImageSeenAt(dialog->GetGpTitle()), "strip.lqi");
    dialog->SetTitleBkgSurf(nullptr);
    EXPECT_EQ(ImageSeenAt(dialog->GetGpTitle()), "strip.lqi");
    dialog->SetTitleBkgSurf(L"");
    EXPECT_EQ(ImageSeenAt(dialog->GetGpTitle()), "");
}

TEST_F(TitleLayouts, MayBeMissingAltogether) {
    for (const char* name : {"GpTitle.bin", "dlgShortCut.bin", "dlgshortcutshadow.bin"})
        RemoveLayout(name);
    Start();
    ASSERT_NE(dialog->GetGpTitle(), nullptr);
    EXPECT_EQ(dialog->GetGpTitle()->GetChildCount(), 0);
    int x;
    int y;
    dialog->GetTitleDefaultPos(x, y);
    EXPECT_EQ(x, 0);
    EXPECT_EQ(y, 0);
    ExerciseStrip(*dialog, scene);
}

TEST_F(TitleLayouts, MayBeDamaged) {
    for (const char* name : {"GpTitle.bin", "dlgShortCut.bin", "dlgshortcutshadow.bin"})
        WriteDeviceFile(std::string("NandFlash/Application/Resource/Layout/") + name, "KVLY, and no more");
    Start();
    EXPECT_EQ(dialog->GetGpTitle()->GetChildCount(), 0);
    ExerciseStrip(*dialog, scene);
}

TEST_F(TitleLayouts, AreDoneWithoutBeforeTheDialogIsInitialised) {
    dialog = std::make_unique<CLQTitleDialog>();
    EXPECT_EQ(dialog->GetGpTitle(), nullptr);
    EXPECT_EQ(dialog->GetShortCutControl(), nullptr);
    EXPECT_EQ(dialog->GetShortCurShadow(), nullptr);
    EXPECT_EQ(dialog->GetTitleInfo(), L"");
    EXPECT_FALSE(dialog->IsPlayTimeShow());
    ExerciseStrip(*dialog, scene);
}

}  // namespace
}  // namespace korvane::test
