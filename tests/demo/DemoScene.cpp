#include "tests/demo/DemoScene.h"

#include <algorithm>
#include <functional>

#include "KorvaneEx.h"
#include "platform/SharedMemory.h"

#include "tests/support/InstallService.h"
#include "tests/support/Share.h"

namespace korvane::test {

namespace {

namespace fs = std::filesystem;

constexpr char kApplication[] = "NandFlash/Application";

using Predicate = std::function<bool(CLQBaseCtrl&)>;

/// The first control of a window or group, at any depth, that is shown and satisfies the predicate.
template <class Owner>
CLQBaseCtrl* FindIn(Owner& owner, const Predicate& predicate) {
    for (int i = 0; i < owner.GetChildCount(); ++i) {
        CLQBaseCtrl* const child = owner.GetChild(i);
        if (child->IsOwnerShow() && predicate(*child))
            return child;
        auto* const group = dynamic_cast<CLQGroupCtrl*>(child);
        if (CLQBaseCtrl* const found = group ? FindIn(*group, predicate) : nullptr)
            return found;
    }
    return nullptr;
}

CLQBaseCtrl* FindOnScreen(const Predicate& predicate) {
    CLQScreen* const screen = CLQScreen::GetInstance();
    for (int i = 0; i < screen->GetWindowCount(); ++i) {
        CLQWindow* const window = screen->GetWindow(i);
        if (CLQBaseCtrl* const found = window->IsShow() ? FindIn(*window, predicate) : nullptr)
            return found;
    }
    return nullptr;
}

}  // namespace

DemoScene::DemoScene() {
    const fs::path made = fs::path(KORVANE_TEST_DEVICE_DIR) / kApplication;
    const fs::path own = DeviceFolder() / kApplication;
    fs::remove(ImageFolder());
    for (const char* const folder : {"Image", "Layout", "Language"})
        ShareFolder(made / "Resource" / folder, own / "Resource" / folder);
    fs::create_directories(own / "Profile");
    for (const char* const file : {"LQ_SysSettings.ini", "LQ_ShortcutConfig.ini"})
        fs::copy_file(made / "Profile" / file, own / "Profile" / file);
    InstallService(DeviceFolder());
    CLQLangManager::GetInstance()->LoadLanguage(L"English.lng");
}

DemoScene::~DemoScene() {
    RemoveSharedMemory();
}

std::vector<std::wstring> DemoScene::Labels() const {
    std::vector<std::wstring> texts;
    FindOnScreen([&texts](CLQBaseCtrl& ctrl) {
        if (auto* const label = dynamic_cast<CLQStatic*>(&ctrl))
            texts.push_back(label->GetText());
        return false;
    });
    return texts;
}

bool DemoScene::Shows(const std::wstring& text) const {
    const std::vector<std::wstring> texts = Labels();
    return std::find(texts.begin(), texts.end(), text) != texts.end();
}

CLQBaseCtrl* DemoScene::FindControl(const wchar_t* name) const {
    return FindOnScreen([name](CLQBaseCtrl& ctrl) { return ctrl.GetCtrlName() == name; });
}

}  // namespace korvane::test
