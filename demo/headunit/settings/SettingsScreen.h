#pragma once

#include <array>
#include <functional>
#include <string>
#include <utility>

#include "KorvaneEx.h"

#include "demo/headunit/ListLooks.h"
#include "demo/headunit/settings/SettingSwitch.h"

namespace korvane::demo {

/// The settings: a list of the languages in two pages, and switches beside it. There is one such screen.
class SettingsScreen : public CLQWindow {
  public:
    SettingsScreen();
    ~SettingsScreen() override;

    /// The window begins above the screen's upper edge, wherever its contents begin: a switch list takes its
    /// position in the window for the one on the screen, and so counts its cells from somewhat further down,
    /// as the captions are that stand at their lower edges.
    bool Create(int x, int y, int width, int height) override;
    std::wstring GetDialogName() override { return L"Settings"; }
    bool OnInit() override;
    void SetShow(bool show) override;

    /// Called with an item of the system record and the value that the user wants it to have.
    void WhenChosen(std::function<void(SysInfoItem item, int value)> handler) {
        onChosen_ = std::move(handler);
    }
    /// Shows what is set. Without a record no language is, and all is off.
    void ShowRecord(const _LQSysInfo* record);

  private:
    static constexpr int kSwitches = 4;

    void CreateList();
    void CreateSwitches();
    void TurnToLanguage();
    void OnClick(int cell, bool changed);
    void Choose(SysInfoItem item, int value);

    static SettingsScreen* instance_;

    int top_ = 0;
    int language_ = -1;  // the cell of the language that is spoken
    std::function<void(SysInfoItem item, int value)> onChosen_;

    ListLooks looks_;  // the list borrows from it
    CLQImageView background_;
    CLQImageView panel_;
    CLQSwitchList list_;
    std::array<SettingSwitch, kSwitches> switches_;
};

}  // namespace korvane::demo
