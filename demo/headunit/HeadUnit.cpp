#include "demo/headunit/HeadUnit.h"

#include <initializer_list>

#include "demo/headunit/Captions.h"
#include "demo/headunit/LanguageFile.h"

namespace korvane::demo {

HeadUnit::HeadUnit() {
    link_.Load();
    record_ = link_.GetSysInfo();
    hasPhone_ = record_ && record_->btState != 0;
}

HeadUnit::~HeadUnit() {
    link_.Unload();
}

void HeadUnit::Create(int x, int y) {
    ShowLanguage();
    CreateScreens(x, y);
    // The last one lies on top of the others.
    strip_.Create(x, y, kWidth, kHeight);
    strip_.OnInit();

    radio_.GetSourcesButton().AddCallBack(kEventReleased, &strip_, &TitleStrip::OpenShortcuts);
    other_.GetSourcesButton().AddCallBack(kEventReleased, &strip_, &TitleStrip::OpenShortcuts);
    for (MenuButton* const button : {&radio_.GetMenuButton(), &other_.GetMenuButton()})
        button->WhenTouched([this] { ShowScreen(Screen::Menu); });
    menu_.WhenChosen([this](MenuItem item) { OnMenu(item); });
    sources_.WhenChosen([this](int id) { ChooseSource(id); });
    strip_.SetTitleBackBtnID(kCaptionBack);
    strip_.WhenBack([this] { OnBack(); });
    strip_.WhenSystemChanged([this](int item) { OnSystemChanged(item); });
    ShowZone();
    ShowScreen(Screen::Player);
    ShowSource();
}

void HeadUnit::CreateScreens(int x, int y) {
    for (CLQWindow* const screen :
         std::initializer_list<CLQWindow*>{&radio_, &other_, &menu_, &sources_, &gauges_}) {
        screen->Create(x, y, kWidth, kHeight);
        screen->OnInit();
        screen->SetShow(false);
    }
}

void HeadUnit::OnSystemChanged(int item) {
    switch (item) {
        case kItemBluetooth:
            ShowPhone();
            break;
        case kItemLanguage:
            ShowLanguage();
            break;
        case kItemSource:
            ShowSource();
            break;
        case kItemRearZone:
            ShowZone();
            strip_.ShowNotice(record_ && record_->rearZone != 0 ? kCaptionRearSeats : kCaptionFrontSeats);
            break;
        default:
            break;
    }
}

void HeadUnit::OnBack() {
    switch (screen_) {
        case Screen::Player:
            ChooseSource(kRadioSource);
            break;
        case Screen::Menu:
            ShowScreen(Screen::Player);
            break;
        case Screen::Sources:
        case Screen::Gauges:
            ShowScreen(Screen::Menu);
            break;
    }
}

void HeadUnit::OnMenu(MenuItem item) {
    switch (item) {
        case MenuItem::Radio:
            ChooseSource(kRadioSource);
            break;
        case MenuItem::Media:
            ChooseSource(lastMedium_);
            break;
        case MenuItem::Sources:
            ShowScreen(Screen::Sources);
            break;
        case MenuItem::Gauges:
            ShowScreen(Screen::Gauges);
            break;
        case MenuItem::Files:
        case MenuItem::Settings:
            break;
    }
}

/// Asks for a source. Its screen comes when the record names it; that of the one that plays comes at once.
void HeadUnit::ChooseSource(int id) {
    if (current_ && current_->id == id) {
        ShowScreen(Screen::Player);
        return;
    }
    const Source* const source = FindSource(id);
    if (source && !source->IsPresent(record_)) {
        strip_.ShowNotice(kCaptionNotConnected);
        return;
    }
    const HWND mainWindow = FindWindowW(nullptr, kMainWindowName);
    if (mainWindow)
        PostMessageW(mainWindow, kMainSourceChosen, 1, id);
}

/// Tells that a phone has come.
void HeadUnit::ShowPhone() {
    const bool isThere = record_ && record_->btState != 0;
    if (isThere && !hasPhone_)
        strip_.ShowNotice(L"title_phone_connected.lqi");
    hasPhone_ = isThere;
}

void HeadUnit::ShowLanguage() {
    if (record_)
        CLQLangManager::GetInstance()->LoadLanguage(LanguageFile(record_->language));
}

void HeadUnit::ShowZone() {
    strip_.SetSourceType(!record_ || record_->rearZone == 0);
}

void HeadUnit::ShowSource() {
    const Source* const source = FindSource(record_ ? record_->source : kRadioSource);
    if (!source || source == current_)
        return;
    current_ = source;
    if (source->hasPlayTime) {
        lastMedium_ = source->id;
        strip_.StartPlayTime();
    } else {
        strip_.StopPlayTime();
    }
    if (source->screen == SourceScreenKind::Other)
        other_.ShowSource(*source);
    sources_.ShowSource(*source);
    menu_.MarkPlaying(MenuItem::Radio, PlaysRadio());
    menu_.MarkPlaying(MenuItem::Media, source->hasPlayTime);
    ShowScreen(Screen::Player);
}

void HeadUnit::ShowScreen(Screen screen) {
    screen_ = screen;
    const bool isPlayer = screen == Screen::Player;
    if (!isPlayer || !PlaysRadio())
        radio_.StopSeeking();
    radio_.SetShow(isPlayer && PlaysRadio());
    other_.SetShow(isPlayer && !PlaysRadio());
    menu_.SetShow(screen == Screen::Menu);
    sources_.SetShow(screen == Screen::Sources);
    gauges_.SetShow(screen == Screen::Gauges);
    strip_.ShowTitle(Title());
    strip_.SetTitleBackBtnShow(!isPlayer || !PlaysRadio());
}

bool HeadUnit::PlaysRadio() const {
    return !current_ || current_->screen == SourceScreenKind::Radio;
}

int HeadUnit::Title() const {
    switch (screen_) {
        case Screen::Player:
            return current_ ? current_->caption : kCaptionTuner;
        case Screen::Menu:
            return kCaptionMenu;
        case Screen::Sources:
            return kCaptionSources;
        case Screen::Gauges:
            return kCaptionGauges;
    }
    return kCaptionTuner;
}

}  // namespace korvane::demo
