#include "platform/Simulation.h"

#include "tests/title/bench/ExerciseStrip.h"
#include "tests/title/bench/TestStrip.h"

namespace korvane::test {
namespace {

class TitleLife : public TestStrip {
  protected:
    void SwitchEverythingOn() {
        Set(L"gps", 1);
        Set(L"mute", 1);
        Set(L"btState", 2);
        Set(L"rdsIconMask", 31);
        Set(L"afState", 2);
        Set(L"guideAvail", 1);
        Set(L"frontRearAvail", 1);
        Set(L"taActive", 1);
    }
};

/// Ends itself in the hook of its back button.
class ClosingDialog : public CLQTitleDialog {
  public:
    explicit ClosingDialog(std::unique_ptr<CLQTitleDialog>& owner) : owner_(owner) {}
    void OnBtnBackPressUp() override {
        ++calls;
        owner_.reset();
    }
    static int calls;

  private:
    std::unique_ptr<CLQTitleDialog>& owner_;
};

int ClosingDialog::calls = 0;

TEST_F(TitleLife, MayEndInTheHookOfTheBackButton) {
    dialog = std::make_unique<ClosingDialog>(dialog);
    dialog->Create(0, 0, 800, 480);
    dialog->OnInit();
    dialog->SetTitleBackBtnShow(true);
    scene.Pump();
    Click(Find(L"BtnBack"));
    EXPECT_EQ(ClosingDialog::calls, 1);
    EXPECT_EQ(dialog, nullptr);
    scene.Advance(10000);
}

std::unique_ptr<CLQTitleDialog>* dialogToEnd = nullptr;

TEST_F(TitleLife, MayEndInTheCallbackOfThePanelsBackButton) {
    Start();
    dialogToEnd = &dialog;
    dialog->SetShortCutBackCallBack([](void*) { dialogToEnd->reset(); });
    dialog->GetShortCutControl()->SetShow(true);
    dialog->GetShortCurShadow()->SetShow(true);
    scene.Pump();
    Click(FindIn(dialog->GetShortCurShadow(), L"Button_shortcutback"));
    EXPECT_EQ(dialog, nullptr);
    scene.Advance(10000);
}

TEST_F(TitleLife, MayBeInitialisedAnewInTheHookOfTheBackButton) {
    class Rebuilding : public CLQTitleDialog {
      public:
        void OnBtnBackPressUp() override { OnInit(); }
    };
    dialog = std::make_unique<Rebuilding>();
    dialog->Create(0, 0, 800, 480);
    dialog->OnInit();
    dialog->SetTitleBackBtnShow(true);
    scene.Pump();
    Click(Find(L"BtnBack"));
    EXPECT_EQ(ImageSeenAt(L"BtnBack"), "back.lqi");
    ExerciseStrip(*dialog, scene);
}

TEST_F(TitleLife, EndsWithAllItsTimers) {
    Start();
    SwitchEverythingOn();
    dialog->SetTitleInfo(L"Station one", true, 3000);
    scene.Advance(700);
    dialog.reset();
    scene.Advance(20000);
    unsigned due = 0;
    EXPECT_FALSE(NextTimerDue(due)) << "none is left";
}

TEST_F(TitleLife, SurvivesTheEndOfEachControl) {
    std::set<std::string> names = TitleLayout::Names();
    names.insert({"StTAText", "StPlayTime", "GpInfo"});
    for (const std::string& name : names) {
        SCOPED_TRACE(name);
        Start();
        SwitchEverythingOn();
        dialog->EnablePlayTime(true);
        dialog->SetTitleIcon(L"cover.lqi", 1000);
        delete Find(std::wstring(name.begin(), name.end()).c_str());
        EXPECT_EQ(Find(std::wstring(name.begin(), name.end()).c_str()), nullptr);
        ExerciseStrip(*dialog, scene);
    }
}

TEST_F(TitleLife, SurvivesTheEndOfItsGroups) {
    Start();
    SwitchEverythingOn();
    dialog->SetTitleInfo(L"Station one", true, 3000);
    scene.Pump();
    delete dialog->GetShortCutControl();
    EXPECT_EQ(dialog->GetShortCutControl(), nullptr);
    ExerciseStrip(*dialog, scene);
    EXPECT_TRUE(dialog->DelChild(dialog->GetShortCurShadow(), true));
    EXPECT_EQ(dialog->GetShortCurShadow(), nullptr);
    ExerciseStrip(*dialog, scene);
    EXPECT_TRUE(dialog->DelChild(dialog->GetGpTitle(), true));
    EXPECT_EQ(dialog->GetGpTitle(), nullptr);
    EXPECT_EQ(dialog->GetTitleInfo(), L"");
    ExerciseStrip(*dialog, scene);
    EXPECT_TRUE(dialog->OnInit());
    EXPECT_NE(dialog->GetGpTitle(), nullptr);
}

TEST_F(TitleLife, SurvivesTheEndOfTheScreen) {
    Start();
    SwitchEverythingOn();
    CLQScreen::GetInstance()->Close();
    ExerciseStrip(*dialog, scene);
}

}  // namespace
}  // namespace korvane::test
