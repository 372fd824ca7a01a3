#include "tests/title/bench/TestPanel.h"

#include "engine/Korvane.h"
#include "platform/Unicode.h"

namespace korvane::test {

namespace fs = std::filesystem;

namespace {

constexpr const char* kSources[] = {
    "tuner",      "dab",  "disc_audio", "disc_video", "bt_audio",  "usb_audio", "usb_video",  "ipod_audio",
    "ipod_video", "aux1", "aux2",       "tv",         "telephone", "navi",      "usb_camera", "audio_off",
};
constexpr const char* kStates[] = {"_n", "_p", "_f", "_d"};

template <class Visit>
void ForEachPicture(Visit visit) {
    for (const char* source : kSources) {
        for (const char* state : kStates)
            visit(std::string("settings_shortcut_menu_") + source + state);
    }
}

}  // namespace

TestPanel::TestPanel(TestService service) : TestStrip(service) {
    ForEachPicture([this](const std::string& name) {
        constexpr int kSide = 8;
        CLQSurfHandle image =
            CLQSurfManager::GetInstance()->CreateSurface(kSide, kSide, eSurface_XRGB8888, true);
        const std::uint32_t pixel = ColorOfImage(name);
        _LQColor color = {static_cast<unsigned char>(pixel >> 16), static_cast<unsigned char>(pixel >> 8),
                          static_cast<unsigned char>(pixel), 255};
        image.FillRect(0, 0, kSide, kSide, color, false);
        WriteImage(scene.ImageFolder() / (name + ".lqi"), image);
    });
    WriteDeviceFile("NandFlash/Application/Profile/LQ_SysSettings.ini", "[PATH]\nDATAPATH=\\UserData\n");
}

void TestPanel::StartShown() {
    Start();
    ShowPanel();
}

void TestPanel::ShowPanel() {
    dialog->GetShortCurShadow()->SetShow(true);
    dialog->GetShortCutControl()->SetShow(true);
    scene.Pump();
}

bool TestPanel::IsPanelShown() {
    const bool shown = dialog->GetShortCutControl()->IsShow();
    EXPECT_EQ(dialog->GetShortCurShadow()->IsShow(), shown) << "the panel and its shadow go together";
    return shown;
}

void TestPanel::Restart() {
    dialog.reset();
    StartShown();
}

CLQButton* TestPanel::Button(int number) {
    const std::wstring name = L"ShortCutBtn" + std::to_wstring(number);
    return dynamic_cast<CLQButton*>(FindIn(dialog->GetShortCutControl(), name.c_str()));
}

CLQButton* TestPanel::BackButton() {
    return dynamic_cast<CLQButton*>(FindIn(dialog->GetShortCurShadow(), L"Button_shortcutback"));
}

std::string TestPanel::PictureOn(int number) {
    CLQButton* const button = Button(number);
    if (!button)
        return "no button";
    scene.Pump();
    const _LQRect rect = button->GetScreenRect();
    const std::uint32_t seen = scene.PixelAt(rect.left, rect.top);
    std::string picture;
    ForEachPicture([seen, &picture](const std::string& name) {
        if (ColorOfImage(name) == seen)
            picture = name;
    });
    return picture;
}

void TestPanel::StoreIds(const PanelIds& ids) {
    std::string text = "[ShortCut]\n";
    for (int i = 0; i < kPanelButtons; ++i)
        text += std::to_string(i + 1) + "=" + std::to_string(ids[i]) + "\n";
    WriteDeviceFile("UserData/ShortCut.ini", text);
}

std::array<std::string, kPanelButtons> TestPanel::StoredIds(const std::string& path) {
    CLQIniReadWrite settings;
    settings.SetFileName(L"\\" + FromUtf8(path));
    std::array<std::string, kPanelButtons> ids;
    for (int i = 0; i < kPanelButtons; ++i)
        ids[i] = ToUtf8(settings.GetString(L"ShortCut", std::to_wstring(i + 1).c_str(), L"none"));
    return ids;
}

void TestPanel::WriteFactoryIds(const std::string& list) {
    WriteDeviceFile("NandFlash/Application/Profile/LQ_ShortcutConfig.ini",
                    "[Default]\nDEFUALTID=" + list + "\n");
}

std::vector<int> TestPanel::TakeRequests() {
    return RequestsIn(mainWindow.TakeMessages());
}

std::vector<int> TestPanel::RequestsIn(const std::vector<MainWindow::Message>& messages) {
    constexpr UINT kSourceChosen = 1125;
    std::vector<int> ids;
    for (const MainWindow::Message& message : messages) {
        if (message.code == kSourceChosen) {
            EXPECT_EQ(message.wParam, 1u);
            ids.push_back(static_cast<int>(message.lParam));
        } else {
            EXPECT_EQ(message.code, kMsgSysInfoChanged);
        }
    }
    return ids;
}

bool TestPanel::IsOnDevice(const std::string& path) {
    return fs::exists(scene.DeviceFolder() / path);
}

PanelIds TestPanel::ChosenIds() {
    PanelIds ids;
    for (int i = 0; i < kPanelButtons; ++i) {
        CLQButton* const button = Button(i + 1);
        const bool enabled = button->IsWindowEnabled();
        button->EnableWindow(true);
        ShowPanel();
        TakeRequests();
        Click(button);
        const std::vector<int> requests = TakeRequests();
        ids[i] = requests.size() == 1 ? requests[0] : -1;
        button->EnableWindow(enabled);
    }
    ShowPanel();
    return ids;
}

}  // namespace korvane::test
