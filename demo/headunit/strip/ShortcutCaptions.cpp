#include "demo/headunit/strip/ShortcutCaptions.h"

#include "demo/headunit/Source.h"

namespace korvane::demo {

namespace {

constexpr int kShortcutCount = 5;
constexpr int kNoSource = -1;

std::wstring ShortcutFile() {
    CLQIniReadWrite settings;
    settings.SetFileName(L"\\NandFlash\\Application\\Profile\\LQ_SysSettings.ini");
    return settings.GetString(L"PATH", L"DATAPATH", L"") + L"\\ShortCut.ini";
}

}  // namespace

void CaptionShortcuts(CLQGroupCtrl& panel) {
    CLQIniReadWrite shortcuts;
    shortcuts.SetFileName(ShortcutFile());
    panel.BuildRelationNameToPtr();
    for (int i = 1; i <= kShortcutCount; ++i) {
        const std::wstring number = std::to_wstring(i);
        const Source* const source = FindSource(shortcuts.GetInt(L"ShortCut", number.c_str(), kNoSource));
        CLQBaseCtrl* const button = panel.FindCtrl((L"ShortCutBtn" + number).c_str());
        if (source && button)
            button->SetLangID(source->caption);
    }
    panel.ReleaseRelationMap();
}

}  // namespace korvane::demo
