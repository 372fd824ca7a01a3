#include "engine/widgets/elements/TextElement.h"

#include "tests/title/bench/TestStrip.h"

// The window for the beep is looked up once in a process, so each of these runs in a process of its own.

namespace korvane::test {
namespace {

using Messages = std::vector<MainWindow::Message>;

class TitleButtons : public TestStrip {
  protected:
    TitleButtons() {
        LoadTexts("7 = Menu\n");
        Start();
    }

    /// Clicks a button and takes what the main application got, together with one beep.
    Messages MessagesOf(const wchar_t* name) {
        Click(Find(name));
        EXPECT_EQ(mainWindow.TakeBeeps(), 1);
        return mainWindow.TakeMessages();
    }

    bool IsShown(const wchar_t* name) { return Find(name)->IsOwnerShow(); }

    void ExpectZoneButtons(bool front, bool rear) {
        EXPECT_EQ(IsShown(L"BtnToFront"), front);
        EXPECT_EQ(IsShown(L"BtnToRear"), rear);
    }

    void ExpectAnnouncement(bool announced) {
        EXPECT_EQ(IsShown(L"BtnTACancel"), announced);
        EXPECT_EQ(IsShown(L"StTAText"), announced);
        EXPECT_EQ(IsShown(L"StInfo"), !announced);
    }
};

TEST_F(TitleButtons, OfferTheGuideWhenThereIsOne) {
    EXPECT_FALSE(IsShown(L"BtnGuide"));
    for (const int value : {1, 2, 255}) {
        Set(L"guideAvail", value);
        EXPECT_EQ(ImageSeenAt(L"BtnGuide"), "guide.lqi");
    }
    Set(L"guideAvail", 0);
    EXPECT_EQ(ImageSeenAt(L"BtnGuide"), "");
}

TEST_F(TitleButtons, OfferOneZoneAtATime) {
    ExpectZoneButtons(false, false);
    Set(L"frontRearAvail", 1);
    ExpectZoneButtons(false, true);
    dialog->SetSourceType(false);
    ExpectZoneButtons(true, false);
    dialog->SetSourceType(false);
    ExpectZoneButtons(true, false);
    dialog->SetSourceType(true);
    ExpectZoneButtons(false, true);
    Set(L"frontRearAvail", 0);
    ExpectZoneButtons(false, false);
    dialog->SetSourceType(false);
    ExpectZoneButtons(false, false);
    Set(L"frontRearAvail", 255);
    ExpectZoneButtons(true, false);
}

TEST_F(TitleButtons, ShowTheIconsWhileThereIsNoBackButton) {
    EXPECT_FALSE(IsShown(L"BtnBack"));
    EXPECT_TRUE(IsShown(L"GpIconInfo"));
    dialog->SetTitleBackBtnShow(true);
    EXPECT_EQ(ImageSeenAt(L"BtnBack"), "back.lqi");
    EXPECT_FALSE(IsShown(L"GpIconInfo"));
    dialog->SetTitleBackBtnShow(false);
    EXPECT_EQ(ImageSeenAt(L"BtnBack"), "");
    EXPECT_TRUE(IsShown(L"GpIconInfo"));
}

TEST_F(TitleButtons, LeaveTheBackButtonAloneWhenNothingChanges) {
    dialog->SetTitleBackBtnShow(true);
    Find(L"BtnBack")->SetShow(false);
    dialog->SetTitleBackBtnShow(true);
    EXPECT_FALSE(IsShown(L"BtnBack"));
    for (int item = 1; item <= 28; ++item)
        Notify(item);
    EXPECT_FALSE(IsShown(L"BtnBack")) << "no message refreshes it";
    dialog->UpdateAllIcon();
    EXPECT_TRUE(IsShown(L"BtnBack"));
}

TEST_F(TitleButtons, ShowATrafficAnnouncementInPlaceOfTheTitle) {
    ExpectAnnouncement(false);
    Set(L"taActive", 1);
    ExpectAnnouncement(true);
    EXPECT_EQ(ImageSeenAt(L"BtnTACancel"), "cancel.lqi");
    Set(L"taActive", 255);
    ExpectAnnouncement(true);
    Set(L"taActive", 0);
    ExpectAnnouncement(false);
}

TEST_F(TitleButtons, ShowNoAnnouncementBesideTheBackButton) {
    Set(L"taActive", 1);
    dialog->SetTitleBackBtnShow(true);
    ExpectAnnouncement(false);
    Set(L"taActive", 0);
    Set(L"taActive", 1);
    ExpectAnnouncement(false);
    dialog->SetTitleBackBtnShow(false);
    ExpectAnnouncement(true);
}

TEST_F(TitleButtons, LeaveTheTitleTheRoomOfTheCancelButton) {
    int width;
    int height;
    for (int repetition = 0; repetition < 3; ++repetition) {
        for (const int announced : {1, 0}) {
            Set(L"taActive", announced);
            Find(L"StInfo")->GetSize(width, height);
            EXPECT_EQ(width, kInfoWidth + kCancelWidth);
            EXPECT_EQ(height, kInfoHeight);
        }
    }
}

TEST_F(TitleButtons, ShareTheRoomOfTheTitleWithThePlayTime) {
    dialog->EnablePlayTime(true);
    for (int repetition = 0; repetition < 3; ++repetition) {
        for (const int announced : {1, 0}) {
            Set(L"taActive", announced);
            const _LQRect info = Find(L"StInfo")->GetScreenRect();
            EXPECT_EQ(info.left, kInfoX);
            EXPECT_EQ(info.right - info.left, kInfoWidth - 162 + kCancelWidth - 10);
            EXPECT_EQ(info.bottom - info.top, kInfoHeight);
            const _LQRect playTime = Find(L"StPlayTime")->GetScreenRect();
            EXPECT_EQ(playTime.left, kInfoX + kInfoWidth - 162 + kCancelWidth);
            EXPECT_EQ(playTime.right - playTime.left, 162);
            EXPECT_EQ(playTime.top, kInfoY);
        }
    }
}

TEST_F(TitleButtons, HideThePlayTimeWithTheTitle) {
    dialog->EnablePlayTime(true);
    EXPECT_TRUE(dialog->IsPlayTimeShow());
    Set(L"taActive", 1);
    EXPECT_FALSE(dialog->IsPlayTimeShow());
    Set(L"taActive", 0);
    EXPECT_TRUE(dialog->IsPlayTimeShow());
}

TEST_F(TitleButtons, CancelAnAnnouncement) {
    Set(L"taActive", 1);
    EXPECT_EQ(MessagesOf(L"BtnTACancel"), (Messages{{1133, 1, 0}}));
}

TEST_F(TitleButtons, SwitchTheZone) {
    Set(L"frontRearAvail", 1);
    EXPECT_EQ(MessagesOf(L"BtnToRear"), (Messages{{1133, 2, 0}}));
    dialog->SetSourceType(false);
    EXPECT_EQ(MessagesOf(L"BtnToFront"), (Messages{{1133, 2, 0}}));
}

TEST_F(TitleButtons, CallTheGuide) {
    Set(L"guideAvail", 1);
    EXPECT_EQ(MessagesOf(L"BtnGuide"), (Messages{{1133, 3, 0}}));
}

TEST_F(TitleButtons, PostNothingForTheBackButton) {
    dialog->SetTitleBackBtnShow(true);
    EXPECT_EQ(MessagesOf(L"BtnBack"), Messages{});
}

TEST_F(TitleButtons, ActAtTheReleaseAndNotAtThePress) {
    Set(L"guideAvail", 1);
    const _LQRect rect = Find(L"BtnGuide")->GetScreenRect();
    scene.Press(rect.left + 5, rect.top + 5);
    EXPECT_EQ(mainWindow.TakeMessages(), Messages{});
    EXPECT_EQ(mainWindow.TakeBeeps(), 0);
    scene.Release(700, 400);
    EXPECT_EQ(mainWindow.TakeMessages(), (Messages{{1133, 3, 0}})) << "wherever the finger is";
}

TEST_F(TitleButtons, StaySilentWhenTheyAreHidden) {
    Click(Find(L"BtnGuide"));
    EXPECT_EQ(mainWindow.TakeMessages(), Messages{});
    EXPECT_EQ(mainWindow.TakeBeeps(), 0);
}

TEST_F(TitleButtons, DoWithoutTheMainApplication) {
    mainWindow.Close();
    Set(L"guideAvail", 1);
    Click(Find(L"BtnGuide"));
    MainWindow later;
    Click(Find(L"BtnGuide"));
    EXPECT_EQ(later.TakeMessages(), (Messages{{1133, 3, 0}})) << "is looked for at each press";
    EXPECT_EQ(later.TakeBeeps(), 0) << "the beep is not";
}

TEST_F(TitleButtons, FindTheMainApplicationByItsTitleAlone) {
    mainWindow.Close();
    const MainWindow sameClass(L"NavigReceive", L"NavigRecive");
    MainWindow sameTitle(L"NavigRecive", L"AnotherClass");
    Set(L"guideAvail", 1);
    Click(Find(L"BtnGuide"));
    EXPECT_EQ(sameTitle.TakeMessages(), (Messages{{1133, 3, 0}}));
    EXPECT_EQ(sameTitle.TakeBeeps(), 1);
}

TEST_F(TitleButtons, GiveTheBackButtonACaptionOfTheLanguageTable) {
    auto* const caption = dynamic_cast<CLQTextElement*>(Find<CLQButton>(L"BtnBack")->GetGUIElement(1));
    ASSERT_NE(caption, nullptr);
    EXPECT_EQ(caption->GetText(), L"Back");
    dialog->SetTitleBackBtnID(7);
    EXPECT_EQ(caption->GetText(), L"Menu");
    EXPECT_EQ(caption->GetLangID(), 7);
    LoadTexts(
        "7 = Zur\xC3\xBC"
        "ck\n");
    EXPECT_EQ(caption->GetText(),
              L"Zur\u00FC"
              L"ck");
}

class TitleButtonsOfOtherLooks : public TestStrip {};

TEST_F(TitleButtonsOfOtherLooks, TakeNoCaptionWithoutATextElement) {
    LoadTexts("7 = Menu\n");
    TitleLayout layout;
    layout.properties["BtnBack"] = "elements=1";
    WriteTitleLayout(layout);
    Start();
    auto* const button = Find<CLQButton>(L"BtnBack");
    EXPECT_EQ(button->GetGUIElementCount(), 1);
    dialog->SetTitleBackBtnID(7);
    EXPECT_EQ(button->GetGUIElementCount(), 1);
}

TEST_F(TitleButtonsOfOtherLooks, TakeNoCaptionWhereAPictureIs) {
    LoadTexts("7 = Menu\n");
    TitleLayout layout;
    layout.properties["BtnBack"] = "element1.type=image";
    WriteTitleLayout(layout);
    Start();
    auto* const button = Find<CLQButton>(L"BtnBack");
    dialog->SetTitleBackBtnID(7);
    EXPECT_EQ(button->GetGUIElement(1)->GetGUIElementType(), eGUIElement_Image);
}

}  // namespace
}  // namespace korvane::test
