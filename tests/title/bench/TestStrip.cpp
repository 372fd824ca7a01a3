#include "tests/title/bench/TestStrip.h"

#include <fstream>

#include "engine/Korvane.h"
#include "engine/widgets/layout/CompileLayout.h"

#include "service/SysInfoService.h"
#include "tests/support/InstallService.h"

namespace korvane::test {

namespace fs = std::filesystem;

namespace {

constexpr char kApplication[] = "NandFlash/Application";
constexpr std::uint32_t kBlack = 0xFF000000;

constexpr const char* kImages[] = {
    "cancel.lqi",
    "front.lqi",
    "rear.lqi",
    "guide.lqi",
    "back.lqi",
    "gps.lqi",
    "mute.lqi",
    "am.lqi",
    "pm.lqi",
    "cover.lqi",
    "strip.lqi",
    "title_icon_bt_gray.lqi",
    "title_icon_bt_active.lqi",
    "title_icon_reg_n.lqi",
    "title_icon_reg_f.lqi",
    "title_icon_pty_n.lqi",
    "title_icon_pty_f.lqi",
    "title_icon_af_n.lqi",
    "title_icon_af_f.lqi",
    "title_icon_ta_n.lqi",
    "title_icon_ta_f.lqi",
    "title_icon_tp_n.lqi",
    "title_icon_tp_f.lqi",
};

constexpr char kPanelLayout[] =
    "[Layout]\nkind=group\nx=0\ny=100\nwidth=800\nheight=120\n"
    "children=ShortCutBtn1,ShortCutBtn2,ShortCutBtn3,ShortCutBtn4,ShortCutBtn5\n"
    "[ShortCutBtn1]\nkind=button\nname=ShortCutBtn1\nx=20\ny=10\nwidth=100\nheight=100\n"
    "[ShortCutBtn2]\nkind=button\nname=ShortCutBtn2\nx=140\ny=10\nwidth=100\nheight=100\n"
    "[ShortCutBtn3]\nkind=button\nname=ShortCutBtn3\nx=260\ny=10\nwidth=100\nheight=100\n"
    "[ShortCutBtn4]\nkind=button\nname=ShortCutBtn4\nx=380\ny=10\nwidth=100\nheight=100\n"
    "[ShortCutBtn5]\nkind=button\nname=ShortCutBtn5\nx=500\ny=10\nwidth=100\nheight=100\n";

constexpr char kShadowLayout[] =
    "[Layout]\nkind=group\nx=0\ny=240\nwidth=800\nheight=240\nchildren=Button_shortcutback\n"
    "[Button_shortcutback]\nkind=button\nname=Button_shortcutback\nx=20\ny=20\nwidth=100\nheight=60\n";

CLQSurfHandle PlainImage(const std::string& name) {
    constexpr int kSide = 40;
    CLQSurfHandle image = CLQSurfManager::GetInstance()->CreateSurface(kSide, kSide, eSurface_XRGB8888, true);
    const std::uint32_t pixel = ColorOfImage(name);
    _LQColor color = {static_cast<unsigned char>(pixel >> 16), static_cast<unsigned char>(pixel >> 8),
                      static_cast<unsigned char>(pixel), 255};
    image.FillRect(0, 0, kSide, kSide, color, false);
    return image;
}

}  // namespace

std::uint32_t ColorOfImage(const std::string& name) {
    std::uint32_t hash = 2166136261U;
    for (const char letter : name)
        hash = (hash ^ static_cast<unsigned char>(letter)) * 16777619U;
    return hash | kBlack;
}

TestStrip::TestStrip(TestService service) {
    fs::create_directories(scene.DeviceFolder() / kApplication / "Profile");
    WriteTitleLayout(TitleLayout());
    WriteLayout("dlgShortCut.bin", kPanelLayout);
    WriteLayout("dlgshortcutshadow.bin", kShadowLayout);
    for (const char* name : kImages) {
        CLQSurfHandle image = PlainImage(name);
        WriteImage(scene.ImageFolder() / name, image);
    }
    if (service == TestService::Present)
        InstallService(scene.DeviceFolder());
    if (service == TestService::WithoutRecord)
        InstallService(scene.DeviceFolder(), KORVANE_TEST_RECORDLESS_SERVICE);
    if (service != TestService::Missing) {
        link_.Load();
        record_ = link_.GetSysInfo();
    }

    background.Create(0, 0, 800, 480);
    _LQColor black;
    background.EnableBkgColor(true, &black);
    scene.Pump();
}

TestStrip::~TestStrip() {
    dialog.reset();
    link_.Unload();
}

void TestStrip::Start() {
    dialog = std::make_unique<CLQTitleDialog>();
    dialog->Create(0, 0, 800, 480);
    dialog->OnInit();
    scene.Pump();
}

void TestStrip::WriteLayout(const std::string& name, const std::string& text) {
    CLQIniReadWrite ini;
    CLQMemBlob blob;
    LayoutProblem problem;
    ASSERT_TRUE(ini.SetContents(text));
    ASSERT_TRUE(CompileLayout(ini, blob, problem)) << name;
    const std::vector<unsigned char> bytes = blob.ToBytes();
    WriteDeviceFile(std::string(kApplication) + "/Resource/Layout/" + name,
                    std::string(bytes.begin(), bytes.end()));
}

void TestStrip::RemoveLayout(const std::string& name) {
    ASSERT_TRUE(fs::remove(scene.DeviceFolder() / kApplication / "Resource/Layout" / name));
}

void TestStrip::WriteDeviceFile(const std::string& path, const std::string& bytes) {
    const fs::path file = scene.DeviceFolder() / path;
    fs::create_directories(file.parent_path());
    std::ofstream stream(file, std::ios::binary);
    stream << bytes;
    ASSERT_TRUE(stream.good()) << path;
}

void TestStrip::LoadTexts(const std::string& lines) {
    WriteDeviceFile("test.lng", "[language]\nname=Test\n[text]\n" + lines);
    ASSERT_TRUE(CLQLangManager::GetInstance()->LoadLanguage(L"\\test.lng"));
}

void TestStrip::Set(const wchar_t* field, int value) {
    ASSERT_NE(link_.pfnSetSetupValue, nullptr);
    const auto setValue =
        reinterpret_cast<decltype(&LQ_SetSetupValue)>(reinterpret_cast<void (*)()>(link_.pfnSetSetupValue));
    ASSERT_EQ(setValue(field, value), 1);
    scene.Pump();
}

void TestStrip::Notify(int item) {
    PostMessageW(CLQScreen::GetInstance()->GetHWND(), kMsgSysInfoChanged, static_cast<WPARAM>(item), 0);
    scene.Pump();
}

CLQBaseCtrl* TestStrip::FindIn(CLQGroupCtrl* group, const wchar_t* name) {
    if (!group)
        return nullptr;
    group->BuildRelationNameToPtr();
    CLQBaseCtrl* found = group->FindCtrl(name);
    group->ReleaseRelationMap();
    return found;
}

std::string TestStrip::ImageSeenAt(CLQBaseCtrl* ctrl) {
    if (!ctrl)
        return "no control";
    scene.Pump();
    const _LQRect rect = ctrl->GetScreenRect();
    const std::uint32_t pixel = scene.PixelAt(rect.left, rect.top);
    if (pixel == kBlack)
        return std::string();
    for (const char* name : kImages) {
        if (ColorOfImage(name) == pixel)
            return name;
    }
    return "no image";
}

std::vector<std::uint32_t> TestStrip::PixelsOfCtrl(CLQBaseCtrl& ctrl) {
    scene.Pump();
    const _LQRect rect = ctrl.GetScreenRect();
    std::vector<std::uint32_t> pixels;
    for (int y = rect.top; y < rect.bottom; ++y) {
        for (int x = rect.left; x < rect.right; ++x)
            pixels.push_back(scene.PixelAt(x, y));
    }
    return pixels;
}

void TestStrip::Click(CLQBaseCtrl* ctrl) {
    ASSERT_NE(ctrl, nullptr);
    const _LQRect rect = ctrl->GetScreenRect();
    scene.Press((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2);
    scene.Release((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2);
}

}  // namespace korvane::test
