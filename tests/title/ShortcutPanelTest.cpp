#include <ostream>

#include "engine/Korvane.h"

#include "tests/title/bench/TestPanel.h"

namespace korvane::test {
namespace {

using Field = unsigned char _LQSysInfo::*;
using Ids = std::vector<int>;

struct SourceCase {
    int id;
    const char* name;
    Field presence;        ///< null for a source that is always there
    const wchar_t* field;  ///< its name
};

std::ostream& operator<<(std::ostream& stream, const SourceCase& source) {
    return stream << source.id << " " << source.name;
}

const SourceCase kSources[] = {
    {0, "tuner", nullptr, L""},
    {37, "dab", nullptr, L""},
    {4, "disc_audio", &_LQSysInfo::discAudioPresent, L"discAudioPresent"},
    {5, "disc_video", &_LQSysInfo::discVideoPresent, L"discVideoPresent"},
    {11, "bt_audio", &_LQSysInfo::btState, L"btState"},
    {6, "usb_audio", &_LQSysInfo::usbPresent, L"usbPresent"},
    {7, "usb_video", &_LQSysInfo::usbPresent, L"usbPresent"},
    {8, "ipod_audio", &_LQSysInfo::ipodPresent, L"ipodPresent"},
    {9, "ipod_video", &_LQSysInfo::ipodPresent, L"ipodPresent"},
    {13, "aux1", &_LQSysInfo::aux1Present, L"aux1Present"},
    {14, "aux2", &_LQSysInfo::aux2Present, L"aux2Present"},
    {18, "tv", &_LQSysInfo::tvPresent, L"tvPresent"},
    {12, "telephone", &_LQSysInfo::btState, L"btState"},
    {17, "navi", &_LQSysInfo::naviPresent, L"naviPresent"},
    {15, "usb_camera", nullptr, L""},
    {35, "audio_off", nullptr, L""},
};

class ShortcutPanel : public TestPanel {
  protected:
    using TestPanel::TestPanel;

    /// Closes the main application before anybody has looked for it.
    void CloseMainApplication() { ASSERT_TRUE(DestroyWindow(FindWindowW(nullptr, kMainWindowName))); }
};

class ShortcutSource : public ShortcutPanel, public testing::WithParamInterface<SourceCase> {
  protected:
    ShortcutSource() { StoreIds({GetParam().id, 0, 0, 0, 0}); }

    std::string Picture(const char* state) const {
        return std::string("settings_shortcut_menu_") + GetParam().name + state;
    }
    void SetPresence(unsigned char value) {
        if (GetParam().presence)
            Set(GetParam().field, value);
    }
    void PressMiddle() {
        const _LQRect rect = Button(1)->GetScreenRect();
        scene.Press((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2);
    }
};

TEST_P(ShortcutSource, HasAPictureForEachLook) {
    StartShown();
    SetPresence(1);
    EXPECT_EQ(PictureOn(1), Picture("_n"));
    PressMiddle();
    EXPECT_EQ(PictureOn(1), Picture("_p"));
    scene.Release(0, 0);
    ShowPanel();
    dialog->SetFocusCtrl(Button(1));
    SetCursorState(true);
    EXPECT_EQ(PictureOn(1), Picture("_f"));
    Button(1)->EnableWindow(false);
    EXPECT_EQ(PictureOn(1), Picture("_d"));
}

TEST_P(ShortcutSource, IsOfferedWhileItIsPresent) {
    StartShown();
    const bool always = !GetParam().presence;
    EXPECT_EQ(PictureOn(1), Picture(always ? "_n" : "_d"));
    for (const int value : {1, 0, 2, 255}) {
        SetPresence(static_cast<unsigned char>(value));
        const bool present = always || value != 0;
        EXPECT_EQ(PictureOn(1), Picture(present ? "_n" : "_d")) << value;
        Click(Button(1));
        EXPECT_EQ(TakeRequests(), present ? Ids{GetParam().id} : Ids()) << value;
        EXPECT_EQ(IsPanelShown(), !present) << value;
        ShowPanel();
    }
}

TEST_P(ShortcutSource, IsJudgedByItsOwnFieldAlone) {
    StartShown();
    Record() = {};
    for (std::size_t i = 0; i < sizeof(_LQSysInfo); ++i)
        reinterpret_cast<unsigned char*>(&Record())[i] = 1;
    if (GetParam().presence)
        Record().*GetParam().presence = 0;
    Notify(22);
    EXPECT_EQ(Button(1)->IsWindowEnabled(), !GetParam().presence);
}

INSTANTIATE_TEST_SUITE_P(Sixteen, ShortcutSource, testing::ValuesIn(kSources),
                         [](const auto& source) { return std::string(source.param.name); });

TEST_F(ShortcutPanel, OffersEveryIdByThePresenceOfItsDevice) {
    StartShown();
    const auto presenceOf = [](int id) -> Field {
        for (const SourceCase& source : kSources) {
            if (source.id == id)
                return source.presence;
        }
        // The iPod in general has no pictures of its own.
        return id == 10 ? &_LQSysInfo::ipodPresent : nullptr;
    };
    for (int first = 0; first < 256; first += kPanelButtons) {
        StoreIds({first, first + 1, first + 2, first + 3, first + 4});
        for (const unsigned char present : {0, 1}) {
            Record() = {};
            for (const SourceCase& source : kSources) {
                if (source.presence)
                    Record().*source.presence = present;
            }
            Notify(28);
            for (int number = 1; number <= kPanelButtons; ++number) {
                const int id = (first + number - 1) & 255;
                EXPECT_EQ(Button(number)->IsWindowEnabled(), !presenceOf(id) || present) << id;
            }
        }
    }
}

TEST_F(ShortcutPanel, KeepsItsPicturesForAnIdWithoutPictures) {
    StartShown();
    for (const int id : {10, 16, 44, 255}) {
        StoreIds({37, 37, 37, 37, 37});
        Notify(1);
        ASSERT_EQ(PictureOn(1), "settings_shortcut_menu_dab_n");
        StoreIds({id, id, id, id, id});
        Record().ipodPresent = 1;
        Notify(1);
        for (int number = 1; number <= kPanelButtons; ++number)
            EXPECT_EQ(PictureOn(number), "settings_shortcut_menu_dab_n") << id;
    }
}

TEST_F(ShortcutPanel, DisablesTheIpodInGeneralWithoutAnIpod) {
    StoreIds({10, 16, 255, 0, 35});
    StartShown();
    EXPECT_FALSE(Button(1)->IsWindowEnabled());
    for (int number = 2; number <= kPanelButtons; ++number)
        EXPECT_TRUE(Button(number)->IsWindowEnabled()) << number;
    Set(L"ipodPresent", 1);
    EXPECT_TRUE(Button(1)->IsWindowEnabled());
}

TEST_F(ShortcutPanel, FollowsOnlyTheNewsThatConcernIt) {
    StoreIds({4, 5, 6, 8, 18});
    StartShown();
    for (int item = -1; item <= 40; ++item) {
        Record() = {};
        Notify(22);
        ASSERT_FALSE(Button(1)->IsWindowEnabled());
        Record().discAudioPresent = 1;
        Notify(item);
        EXPECT_EQ(Button(1)->IsWindowEnabled(), item == 1 || (item >= 22 && item <= 28)) << item;
    }
}

TEST_F(ShortcutPanel, IsHiddenUntilTheApplicationShowsIt) {
    Start();
    const auto hidden = scene.Pixels();
    EXPECT_FALSE(IsPanelShown());
    ShowPanel();
    EXPECT_NE(scene.Pixels(), hidden);
    dialog->GetShortCutControl()->SetShow(false);
    dialog->GetShortCurShadow()->SetShow(false);
    scene.Pump();
    EXPECT_EQ(scene.Pixels(), hidden);
}

TEST_F(ShortcutPanel, IsHiddenAlsoWhenTheLayoutsShowIt) {
    WriteLayout("dlgShortCut.bin", "[Layout]\nkind=group\nshown=1\nwidth=800\nheight=100\n");
    WriteLayout("dlgshortcutshadow.bin", "[Layout]\nkind=group\nshown=1\nwidth=800\nheight=100\n");
    Start();
    EXPECT_FALSE(IsPanelShown());
}

TEST_F(ShortcutPanel, AsksTheMainApplicationForTheSourceAndCloses) {
    StoreIds({37, 35, 15, 0, 36});
    StartShown();
    EXPECT_EQ(ChosenIds(), (PanelIds{37, 35, 15, 0, 36}));
    for (int number = 1; number <= kPanelButtons; ++number) {
        ShowPanel();
        mainWindow.TakeBeeps();
        Click(Button(number));
        EXPECT_FALSE(IsPanelShown());
        EXPECT_EQ(mainWindow.TakeBeeps(), 1);
        EXPECT_EQ(TakeRequests().size(), 1u);
    }
}

TEST_F(ShortcutPanel, AsksForTheSourceWhereverTheFingerIsLifted) {
    StoreIds({37, 35, 15, 0, 36});
    StartShown();
    const _LQRect rect = Button(3)->GetScreenRect();
    scene.Press(rect.left, rect.top);
    scene.Move(790, 470);
    EXPECT_EQ(TakeRequests(), Ids());
    EXPECT_TRUE(IsPanelShown());
    scene.Release(790, 470);
    EXPECT_EQ(TakeRequests(), (Ids{15}));
    EXPECT_FALSE(IsPanelShown());
}

TEST_F(ShortcutPanel, IgnoresAPressThatIsHeldWhenTheSourceGoes) {
    StoreIds({4, 0, 0, 0, 0});
    StartShown();
    Set(L"discAudioPresent", 1);
    const _LQRect rect = Button(1)->GetScreenRect();
    scene.Press(rect.left, rect.top);
    Set(L"discAudioPresent", 0);
    scene.Release(rect.left, rect.top);
    EXPECT_EQ(TakeRequests(), Ids());
    EXPECT_TRUE(IsPanelShown());
}

TEST_F(ShortcutPanel, TakesNoTouchWhileItIsHidden) {
    StoreIds({37, 35, 15, 0, 36});
    Start();
    Click(Button(1));
    EXPECT_EQ(TakeRequests(), Ids());
    EXPECT_EQ(mainWindow.TakeBeeps(), 0);
}

TEST_F(ShortcutPanel, StaysWithTheMainApplicationThatItFoundFirst) {
    StartShown();
    Click(Button(1));
    EXPECT_EQ(TakeRequests(), (Ids{0}));
    CloseMainApplication();
    MainWindow second;
    ShowPanel();
    Click(Button(1));
    EXPECT_EQ(RequestsIn(second.TakeMessages()), Ids());
    EXPECT_FALSE(IsPanelShown());
}

TEST_F(ShortcutPanel, LooksForTheMainApplicationAtTheFirstPress) {
    CloseMainApplication();
    StartShown();
    MainWindow late;
    Click(Button(1));
    EXPECT_EQ(RequestsIn(late.TakeMessages()), (Ids{0}));
}

TEST_F(ShortcutPanel, PostsToNobodyOnceTheMainApplicationWasMissing) {
    CloseMainApplication();
    StartShown();
    Click(Button(1));
    EXPECT_FALSE(IsPanelShown());
    MainWindow late;
    ShowPanel();
    const _LQRect rect = Button(1)->GetScreenRect();
    for (const int code : {513, 514}) {
        _LQMessage msg;
        msg.code = static_cast<unsigned>(code);
        msg.x = rect.left;
        msg.y = rect.top;
        dialog->DoMessage(&msg);
    }
    // A post to no window lands in the thread's own queue.
    MSG posted = {};
    ASSERT_TRUE(PeekMessageW(&posted, nullptr, 1125, 1125, PM_REMOVE));
    EXPECT_EQ(posted.hwnd, nullptr);
    EXPECT_EQ(posted.wParam, 1u);
    EXPECT_EQ(posted.lParam, 0);
    scene.Pump();
    EXPECT_EQ(RequestsIn(late.TakeMessages()), Ids());
    EXPECT_FALSE(IsPanelShown());
}

TEST_F(ShortcutPanel, TellsTheMainApplicationByItsClassToo) {
    CloseMainApplication();
    MainWindow titleAlone(kMainWindowName, L"OtherClass");
    StartShown();
    Click(Button(1));
    EXPECT_EQ(RequestsIn(titleAlone.TakeMessages()), Ids());
    EXPECT_EQ(titleAlone.TakeBeeps(), 1) << "the beep goes by the title";
    EXPECT_FALSE(IsPanelShown());
}

TEST_F(ShortcutPanel, TellsTheMainApplicationByItsTitleToo) {
    CloseMainApplication();
    MainWindow classAlone(L"Other title");
    StartShown();
    Click(Button(1));
    EXPECT_EQ(RequestsIn(classAlone.TakeMessages()), Ids());
    EXPECT_EQ(classAlone.TakeBeeps(), 0);
    EXPECT_FALSE(IsPanelShown());
}

struct BackCall {
    int count = 0;
    void* button = nullptr;
} backCall;

TEST_F(ShortcutPanel, LeavesItToTheApplicationWhatTheBackButtonDoes) {
    StartShown();
    backCall = {};
    dialog->SetShortCutBackCallBack([](void* button) {
        ++backCall.count;
        backCall.button = button;
    });
    Click(BackButton());
    EXPECT_EQ(backCall.count, 1);
    EXPECT_EQ(backCall.button, BackButton());
    EXPECT_EQ(mainWindow.TakeBeeps(), 1);
    EXPECT_EQ(TakeRequests(), Ids());
    EXPECT_TRUE(IsPanelShown());
}

TEST_F(ShortcutPanel, BeepsAtABackButtonWithoutCallback) {
    StartShown();
    Click(BackButton());
    dialog->SetShortCutBackCallBack([](void*) { ++backCall.count; });
    dialog->SetShortCutBackCallBack(nullptr);
    backCall = {};
    Click(BackButton());
    EXPECT_EQ(backCall.count, 0);
    EXPECT_EQ(mainWindow.TakeBeeps(), 2);
    EXPECT_TRUE(IsPanelShown());
}

std::unique_ptr<CLQTitleDialog>* dialogToEnd = nullptr;

TEST_F(ShortcutPanel, SurvivesACallbackThatEndsTheStrip) {
    StartShown();
    dialogToEnd = &dialog;
    dialog->SetShortCutBackCallBack([](void*) { dialogToEnd->reset(); });
    Click(BackButton());
    EXPECT_EQ(dialog, nullptr);
    scene.Pump();
}

TEST_F(ShortcutPanel, LiesOverTheVeilThatDimsTheRest) {
    WriteLayout("dlgshortcutshadow.bin",
                "[Layout]\nkind=group\nwidth=800\nheight=480\nchildren=Button_shortcutback\n"
                "[Button_shortcutback]\nkind=button\nname=Button_shortcutback\ny=300\nwidth=800\n"
                "height=100\n");
    StoreIds({37, 35, 15, 0, 36});
    _LQColor white = {255, 255, 255, 255};
    background.EnableBkgColor(true, &white);
    Start();
    EXPECT_EQ(scene.PixelAt(790, 470), 0xFFFFFFFF);
    ShowPanel();
    // 8 with an alpha of 100, over 255: 3 + 155.
    EXPECT_EQ(scene.PixelAt(790, 470), 0xFF9E9E9E);
    EXPECT_EQ(PictureOn(1), "settings_shortcut_menu_dab_n");
    Click(Button(1));
    EXPECT_EQ(TakeRequests(), (Ids{37}));
    EXPECT_EQ(scene.PixelAt(790, 470), 0xFFFFFFFF);
}

TEST_F(ShortcutPanel, DoesWithoutEachOfItsButtons) {
    StoreIds({37, 35, 15, 0, 36});
    for (int missing = 1; missing <= kPanelButtons; ++missing) {
        std::string children;
        std::string sections;
        for (int number = 1; number <= kPanelButtons; ++number) {
            if (number == missing)
                continue;
            const std::string name = "ShortCutBtn" + std::to_string(number);
            children += (children.empty() ? "" : ",") + name;
            sections += "[" + name + "]\nkind=button\nname=" + name + "\nx=" + std::to_string(number * 100) +
                        "\nwidth=80\nheight=80\n";
        }
        WriteLayout("dlgShortCut.bin", "[Layout]\nkind=group\ny=100\nwidth=800\nheight=100\nchildren=" +
                                           children + "\n" + sections);
        StartShown();
        const PanelIds ids = {37, 35, 15, 0, 36};
        for (int number = 1; number <= kPanelButtons; ++number) {
            if (number == missing)
                continue;
            ShowPanel();
            Click(Button(number));
            EXPECT_EQ(TakeRequests(), (Ids{ids[number - 1]})) << missing;
        }
        dialog.reset();
    }
}

TEST_F(ShortcutPanel, TakesAControlOfAnotherKindForAMissingButton) {
    WriteLayout("dlgShortCut.bin",
                "[Layout]\nkind=group\ny=100\nwidth=800\nheight=100\nchildren=ShortCutBtn1\n"
                "[ShortCutBtn1]\nkind=static\nname=ShortCutBtn1\nwidth=80\nheight=80\n");
    WriteLayout("dlgshortcutshadow.bin",
                "[Layout]\nkind=group\ny=200\nwidth=800\nheight=100\nchildren=Button_shortcutback\n"
                "[Button_shortcutback]\nkind=group\nname=Button_shortcutback\nwidth=80\nheight=80\n");
    StartShown();
    Notify(1);
    scene.Press(10, 110);
    scene.Release(10, 110);
    EXPECT_EQ(TakeRequests(), Ids());
    EXPECT_TRUE(IsPanelShown());
}

TEST_F(ShortcutPanel, ComesUpEmptyWithoutItsLayouts) {
    RemoveLayout("dlgShortCut.bin");
    RemoveLayout("dlgshortcutshadow.bin");
    StartShown();
    ASSERT_NE(dialog->GetShortCutControl(), nullptr);
    ASSERT_NE(dialog->GetShortCurShadow(), nullptr);
    EXPECT_EQ(dialog->GetShortCutControl()->GetChildCount(), 0);
    EXPECT_EQ(dialog->GetShortCurShadow()->GetChildCount(), 0);
    Notify(1);
}

TEST_F(ShortcutPanel, TakesADamagedLayoutForAMissingOne) {
    WriteDeviceFile("NandFlash/Application/Resource/Layout/dlgShortCut.bin", "damaged");
    StartShown();
    EXPECT_EQ(dialog->GetShortCutControl()->GetChildCount(), 0);
    EXPECT_NE(BackButton(), nullptr);
}

TEST_F(ShortcutPanel, IsThereOnlyOnceTheStripIsInitialised) {
    dialog = std::make_unique<CLQTitleDialog>();
    EXPECT_EQ(dialog->GetShortCutControl(), nullptr);
    EXPECT_EQ(dialog->GetShortCurShadow(), nullptr);
    dialog->Create(0, 0, 800, 480);
    Notify(1);
    EXPECT_FALSE(IsOnDevice("UserData"));
}

TEST_F(ShortcutPanel, IsBuiltAnewByASecondInitialisation) {
    StoreIds({37, 35, 15, 0, 36});
    StartShown();
    const int children = dialog->GetChildCount();
    dialog->OnInit();
    EXPECT_EQ(dialog->GetChildCount(), children);
    EXPECT_FALSE(IsPanelShown());
    EXPECT_EQ(ChosenIds(), (PanelIds{37, 35, 15, 0, 36}));
}

TEST_F(ShortcutPanel, DoesWithoutWhatTheApplicationDeletes) {
    StartShown();
    ASSERT_TRUE(dialog->GetShortCutControl()->DelChild(Button(2), true));
    Notify(1);
    Click(Button(1));
    EXPECT_EQ(TakeRequests(), (Ids{0}));
    ASSERT_TRUE(dialog->DelChild(dialog->GetShortCutControl(), true));
    Notify(1);
    EXPECT_EQ(dialog->GetShortCutControl(), nullptr);
    ASSERT_TRUE(dialog->DelChild(dialog->GetShortCurShadow(), true));
    EXPECT_EQ(dialog->GetShortCurShadow(), nullptr);
    Notify(22);
}

TEST_F(ShortcutPanel, DoesWithoutPictures) {
    StoreIds({37, 35, 15, 0, 36});
    std::filesystem::remove_all(scene.ImageFolder());
    StartShown();
    EXPECT_EQ(PictureOn(1), "");
    EXPECT_EQ(ChosenIds(), (PanelIds{37, 35, 15, 0, 36}));
}

class ShortcutPanelWithoutService : public ShortcutPanel {
  protected:
    ShortcutPanelWithoutService() : ShortcutPanel(TestService::Missing) {}
};

TEST_F(ShortcutPanelWithoutService, OffersTheAuxiliaryInputsAndWhatIsAlwaysThere) {
    Start();
    for (const SourceCase& source : kSources) {
        StoreIds({source.id, source.id, source.id, source.id, source.id});
        Notify(22);
        const bool offered = !source.presence || source.id == 13 || source.id == 14;
        for (int number = 1; number <= kPanelButtons; ++number)
            EXPECT_EQ(Button(number)->IsWindowEnabled(), offered) << source;
    }
}

class ShortcutPanelWithoutRecord : public ShortcutPanel {
  protected:
    ShortcutPanelWithoutRecord() : ShortcutPanel(TestService::WithoutRecord) {}
};

TEST_F(ShortcutPanelWithoutRecord, OffersWhatIsAlwaysThere) {
    Start();
    for (const SourceCase& source : kSources) {
        StoreIds({source.id, source.id, source.id, source.id, source.id});
        Notify(22);
        for (int number = 1; number <= kPanelButtons; ++number)
            EXPECT_EQ(Button(number)->IsWindowEnabled(), !source.presence) << source;
    }
}

}  // namespace
}  // namespace korvane::test
