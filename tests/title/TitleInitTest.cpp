#include "tests/title/bench/ExerciseStrip.h"
#include "tests/title/bench/TestStrip.h"

namespace korvane::test {
namespace {

class TitleInit : public TestStrip {};

TEST_F(TitleInit, TellsTheResultOfTheWindow) {
    dialog = std::make_unique<CLQTitleDialog>();
    EXPECT_TRUE(dialog->OnInit());
    RemoveLayout("GpTitle.bin");
    EXPECT_TRUE(dialog->OnInit()) << "whatever is missing";
}

TEST_F(TitleInit, HandsTheGroupsToTheWindow) {
    Start();
    EXPECT_EQ(dialog->GetChildCount(), 3);
    for (CLQGroupCtrl* group :
         {dialog->GetGpTitle(), dialog->GetShortCutControl(), dialog->GetShortCurShadow()}) {
        ASSERT_NE(group, nullptr);
        EXPECT_TRUE(dialog->HoldsCtrl(group));
    }
    EXPECT_TRUE(dialog->GetGpTitle()->IsShow());
    EXPECT_FALSE(dialog->GetShortCutControl()->IsShow());
    EXPECT_FALSE(dialog->GetShortCurShadow()->IsShow());
}

TEST_F(TitleInit, MayBeRepeated) {
    Start();
    Set(L"rdsIconMask", 31);
    Set(L"afState", 2);
    dialog->SetTitleIcon(L"cover.lqi", 3000);
    dialog->SetTitleBackBtnShow(true);
    scene.Advance(100);
    const std::wstring time = Find<CLQStatic>(L"St12HR")->GetText();
    ASSERT_TRUE(dialog->OnInit());
    EXPECT_EQ(dialog->GetChildCount(), 3);
    EXPECT_EQ(Find<CLQStatic>(L"St12HR")->GetText(), time) << "also in the same minute";
    EXPECT_EQ(ImageSeenAt(L"BtnBack"), "back.lqi");
    EXPECT_EQ(ImageSeenAt(L"StInfo"), "");
    dialog->SetTitleBackBtnShow(false);
    EXPECT_NE(ImageSeenAt(L"IconAF"), "") << "the search goes on";
    Find<CLQStatic>(L"StInfo")->SetText(L"Put there by the application");
    scene.Advance(3000);
    EXPECT_EQ(dialog->GetTitleInfo(), L"Put there by the application")
        << "the time-out ended with the earlier strip";
    ExerciseStrip(*dialog, scene);
}

TEST_F(TitleInit, ForgetsTheImageOfAnEarlierStrip) {
    TitleLayout layout;
    layout.properties["StInfo"] = "background=strip.lqi";
    WriteTitleLayout(layout);
    Start();
    dialog->SetTitleIcon(L"cover.lqi", 0);
    ASSERT_TRUE(dialog->OnInit());
    dialog->SetTitleInfo(L"", false, 0);
    EXPECT_EQ(ImageSeenAt(L"StInfo"), "strip.lqi") << "which is not the title's";
}

TEST_F(TitleInit, MayLoadAnotherLayoutTheNextTime) {
    Start();
    EXPECT_NE(Find(L"BtnGuide"), nullptr);
    TitleLayout layout;
    layout.without = {"StInfo", "BtnGuide"};
    WriteTitleLayout(layout);
    ASSERT_TRUE(dialog->OnInit());
    EXPECT_EQ(Find(L"BtnGuide"), nullptr);
    EXPECT_EQ(dialog->GetTitleInfo(), L"");
    EXPECT_FALSE(dialog->IsPlayTimeShow());
    ExerciseStrip(*dialog, scene);
}

TEST_F(TitleInit, ComesUpOnADeviceWithoutPictures) {
    std::filesystem::remove_all(scene.ImageFolder());
    Start();
    Set(L"gps", 1);
    Set(L"rdsIconMask", 31);
    EXPECT_TRUE(Find(L"IconGPS")->IsOwnerShow());
    EXPECT_EQ(ImageSeenAt(L"IconGPS"), "");
    ExerciseStrip(*dialog, scene);
}

class BareDevice : public TestStrip {
  protected:
    BareDevice() : TestStrip(TestService::Missing) {
        std::filesystem::remove_all(scene.DeviceFolder() / "NandFlash");
    }
};

TEST_F(BareDevice, StillGetsAStrip) {
    Start();
    ASSERT_NE(dialog->GetGpTitle(), nullptr);
    ASSERT_NE(dialog->GetShortCutControl(), nullptr);
    ASSERT_NE(dialog->GetShortCurShadow(), nullptr);
    EXPECT_EQ(dialog->GetParkingStation(), 0);
    ExerciseStrip(*dialog, scene);
}

TEST_F(TitleInit, HasNoDialogName) {
    Start();
    EXPECT_EQ(dialog->GetDialogName(), L"");
}

TEST_F(TitleInit, LetsTouchesThroughWhereTheStripShowsNothing) {
    class Below : public CLQBaseCtrl {
      public:
        bool DoMessage(_LQMessage* msg) override {
            presses += msg->code == kMsgPress;
            return true;
        }
        int presses = 0;
    };
    Below below;
    below.Create(0, 0, 800, 480);
    background.AddChild(&below);
    Start();
    scene.Press(400, 300);
    scene.Release(400, 300);
    EXPECT_EQ(below.presses, 1);
    Set(L"guideAvail", 1);
    Click(Find(L"BtnGuide"));
    EXPECT_EQ(below.presses, 1);
}

}  // namespace
}  // namespace korvane::test
