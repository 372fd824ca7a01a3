#include "demo/headunit/settings/SettingsScreen.h"

#include <cwchar>
#include <iterator>

#include "demo/headunit/Captions.h"
#include "demo/headunit/LanguageFile.h"

namespace korvane::demo {

namespace {

constexpr int kNone = -1;
constexpr int kCellsOfPage = 7;
constexpr int kCellWidth = 240;
constexpr int kCellHeight = 56;
/// The most that the list still divides into cells of that height.
constexpr int kListHeight = kCellsOfPage * (kCellHeight + 1) - 1;
constexpr int kSwitchPitch = 96;
/// How far the middle of a caption lies below that of its cell.
constexpr int kCaptionDrop = 16;

/// What is drawn in a cell of the list.
constexpr wchar_t kChoice[] = L"LanguageCell";
constexpr wchar_t kPageDown[] = L"LanguageMore";
constexpr wchar_t kPageUp[] = L"LanguageBack";

/// The values are the languages' ids in the system record.
constexpr ListCell kCells[] = {
    {5, kCaptionGerman, kChoice},
    {0, kCaptionEnglish, kChoice},
    {7, kCaptionSpanish, kChoice},
    {4, kCaptionFrench, kChoice},
    {6, kCaptionItalian, kChoice},
    {8, kCaptionDutch, kChoice},
    {ListCell::kSwitchesPages, kCaptionMore, kPageDown},
    {10, kCaptionPolish, kChoice},
    {17, kCaptionPortuguese, kChoice},
    {9, kCaptionSwedish, kChoice},
    {11, kCaptionGreek, kChoice},
    {1, kCaptionChinese, kChoice},
    {16, kCaptionJapanese, kChoice},
    {ListCell::kSwitchesPages, kCaptionMore, kPageUp},
};

/// A switch: the item of the record that it sets, and the field that holds it.
struct Switch {
    SysInfoItem item;
    const unsigned char _LQSysInfo::*field;
    int caption;
};
constexpr Switch kSwitchRows[] = {
    {kItemClockForm, &_LQSysInfo::clock24h, kCaptionClock24h},
    {kItemTa, &_LQSysInfo::taOn, kCaptionTrafficAnnouncements},
    {kItemAf, &_LQSysInfo::afState, kCaptionAlternativeFrequencies},
    {kItemMute, &_LQSysInfo::mute, kCaptionMute},
};

/// Several ids share a language table; any of them selects its cell.
int CellOf(unsigned char language) {
    for (int i = 0; i < static_cast<int>(std::size(kCells)); ++i) {
        const int own = kCells[i].value;
        if (own != ListCell::kSwitchesPages &&
            std::wcscmp(LanguageFile(static_cast<unsigned char>(own)), LanguageFile(language)) == 0)
            return i;
    }
    return kNone;
}

}  // namespace

SettingsScreen* SettingsScreen::instance_ = nullptr;

SettingsScreen::SettingsScreen() {
    instance_ = this;
}

SettingsScreen::~SettingsScreen() {
    instance_ = nullptr;
}

bool SettingsScreen::Create(int x, int y, int width, int height) {
    top_ = y + kCaptionDrop;
    return CLQWindow::Create(x, -kCaptionDrop, width, top_ + height);
}

bool SettingsScreen::OnInit() {
    background_.Create(0, top_, 800, 480);
    background_.SetImagePath(L"SourceBkg.lqi");
    AddChild(&background_);
    CreateList();
    CreateSwitches();
    return true;
}

void SettingsScreen::CreateList() {
    panel_.Create(40, top_ + 70, 260, 402);
    panel_.SetImagePath(L"LanguagePanel.lqi");
    AddChild(&panel_);

    list_.Create(50, top_ + 77 - kCaptionDrop, kCellWidth, kListHeight);
    list_.SetIconNumPrePage(kCellsOfPage);
    looks_.GiveTo(list_, {std::begin(kCells), std::end(kCells)});
    list_.SetFontSize(22, 22);
    // The callback gets no context.
    list_.SetCallBackClick([](int cell, bool changed) {
        if (instance_)
            instance_->OnClick(cell, changed);
    });
    AddChild(&list_);
}

void SettingsScreen::CreateSwitches() {
    for (int i = 0; i < kSwitches; ++i) {
        const Switch& row = kSwitchRows[i];
        SettingSwitch& button = switches_[static_cast<std::size_t>(i)];
        button.Place(326, top_ + 82 + kSwitchPitch * i, row.caption);
        button.WhenTouched([this, &row](bool on) { Choose(row.item, on ? 1 : 0); });
        AddChild(&button);
    }
}

void SettingsScreen::SetShow(bool show) {
    CLQWindow::SetShow(show);
    if (show)
        TurnToLanguage();
}

void SettingsScreen::TurnToLanguage() {
    list_.SetPageDown(language_ >= kCellsOfPage);
}

void SettingsScreen::ShowRecord(const _LQSysInfo* record) {
    const int language = record ? CellOf(record->language) : kNone;
    if (language_ != language) {
        language_ = language;
        list_.SetFouceIndex(language);
        TurnToLanguage();
    }
    for (int i = 0; i < kSwitches; ++i)
        switches_[static_cast<std::size_t>(i)].ShowState(record && record->*kSwitchRows[i].field != 0);
}

void SettingsScreen::OnClick(int cell, bool changed) {
    const int language = kCells[cell].value;
    if (language == ListCell::kSwitchesPages)
        return;
    // A click on the selected language has taken the selection away.
    if (!changed)
        list_.SetFouceIndex(language_);
    else
        Choose(kItemLanguage, language);
}

void SettingsScreen::Choose(SysInfoItem item, int value) {
    if (onChosen_)
        onChosen_(item, value);
}

}  // namespace korvane::demo
