#include "demo/headunit/HeadUnit.h"

#include <utility>

#include "demo/headunit/Captions.h"
#include "demo/headunit/LanguageFile.h"
#include "demo/headunit/ScreenSlide.h"
#include "demo/mainapp/SettingMessage.h"

namespace korvane::demo {

namespace {

constexpr int kStripHeight = 60;

}  // namespace

HeadUnit::HeadUnit() {
    link_.Load();
    record_ = link_.GetSysInfo();
    hasPhone_ = record_ && record_->btState != 0;
}

HeadUnit::~HeadUnit() {
    link_.Unload();
}

void HeadUnit::Create(int x, int y) {
    x_ = x;
    y_ = y;
    ShowLanguage();
    for (CLQWindow* const screen : Screens()) {
        screen->Create(x, y, kWidth, kHeight);
        screen->OnInit();
        screen->SetShow(false);
    }
    // The last one lies on top of the others.
    strip_.Create(x, y, kWidth, kHeight);
    strip_.OnInit();

    radio_.GetSourcesButton().AddCallBack(kEventReleased, &strip_, &TitleStrip::OpenShortcuts);
    other_.GetSourcesButton().AddCallBack(kEventReleased, &strip_, &TitleStrip::OpenShortcuts);
    media_.GetSourcesButton().AddCallBack(kEventReleased, &strip_, &TitleStrip::OpenShortcuts);
    for (MenuButton* const button :
         {&radio_.GetMenuButton(), &media_.GetMenuButton(), &other_.GetMenuButton()})
        button->WhenTouched([this] { SlideTo(Screen::Menu); });
    radio_.WhenPresetsWanted([this] { SlideTo(Screen::Presets); });
    menu_.WhenChosen([this](MenuItem item) { OnMenu(item); });
    menu_.WhenRearranged([this] { ShowTitle(); });
    sources_.WhenChosen([this](int id) { ChooseSource(id); });
    settings_.WhenChosen([this](SysInfoItem item, int value) { ChooseSetting(item, value); });
    media_.WhenTimePasses([this](int seconds) { strip_.ShowPlayTime(seconds); });
    files_.WhenMusicOpened([this](Tracks tracks, std::size_t first) { PlayFiles(std::move(tracks), first); });
    files_.WhenFolderGone([this] { strip_.ShowNotice(kCaptionFolderGone); });
    strip_.WhenBack([this] { OnBack(); });
    strip_.WhenSystemChanged([this](int item) { OnSystemChanged(item); });
    ShowZone();
    ShowStick();
    settings_.ShowRecord(record_);
    ShowScreen(Screen::Player);
    ShowSource();
    ShowPresence();
}

std::vector<CLQWindow*> HeadUnit::Screens() {
    return {&radio_, &presets_, &media_, &other_, &menu_, &sources_, &gauges_, &files_, &settings_};
}

void HeadUnit::OnSystemChanged(int item) {
    switch (item) {
        case kItemBluetooth:
            ShowPhone();
            break;
        case kItemLanguage:
            ShowLanguage();
            break;
        case kItemUsb:
            ShowStick();
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
    ShowPresence();
    settings_.ShowRecord(record_);
}

void HeadUnit::OnBack() {
    if (strip_.ShowsShortcuts()) {
        strip_.CloseShortcuts();
        return;
    }
    switch (screen_) {
        case Screen::Player:
            if (!PlaysRadio())
                ChooseSource(kRadioSource);
            break;
        case Screen::Presets:
            SlideTo(Screen::Player);
            break;
        case Screen::Menu:
            if (menu_.IsRearranging())
                menu_.EndRearranging();
            else
                SlideTo(Screen::Player);
            break;
        case Screen::Sources:
        case Screen::Gauges:
        case Screen::Settings:
            SlideTo(Screen::Menu);
            break;
        case Screen::Files:
            if (!files_.LeaveFolder())
                SlideTo(Screen::Menu);
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
            SlideTo(Screen::Sources);
            break;
        case MenuItem::Gauges:
            SlideTo(Screen::Gauges);
            break;
        case MenuItem::Files:
            SlideTo(Screen::Files);
            break;
        case MenuItem::Settings:
            SlideTo(Screen::Settings);
            break;
    }
}

/// Asks for a source. Its screen comes when the record names it; that of the one that plays comes at once.
void HeadUnit::ChooseSource(int id) {
    if (current_ && current_->id == id) {
        SlideTo(Screen::Player);
        return;
    }
    const Source* const source = FindSource(id);
    if (source && !source->IsPresent(record_)) {
        strip_.ShowNotice(kCaptionNotConnected);
        return;
    }
    awaited_ = id;
    const HWND mainWindow = FindWindowW(nullptr, kMainWindowName);
    if (mainWindow)
        PostMessageW(mainWindow, kMainSourceChosen, 1, id);
}

void HeadUnit::PlayFiles(Tracks tracks, std::size_t first) {
    media_.InsertTracks(kUsbMusicSource, std::move(tracks), first);
    ChooseSource(kUsbMusicSource);
}

/// Asks for a setting. It shows when the record has it.
void HeadUnit::ChooseSetting(SysInfoItem item, int value) {
    const HWND mainWindow = FindWindowW(nullptr, kMainWindowName);
    if (mainWindow)
        PostMessageW(mainWindow, kMainSettingChosen, static_cast<WPARAM>(item), value);
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

void HeadUnit::ShowStick() {
    files_.PlugIn(FindSource(kUsbMusicSource)->IsPresent(record_));
}

/// Shows which devices are there, and lets the source that plays go with its device and come back with it.
void HeadUnit::ShowPresence() {
    menu_.ShowPresence(MenuItem::Media, FindSource(lastMedium_)->IsPresent(record_));
    menu_.ShowPresence(MenuItem::Files, FindSource(kUsbMusicSource)->IsPresent(record_));
    sources_.ShowPresence(record_);
    if (!current_ || current_->IsPresent(record_) == isSourceThere_)
        return;
    PlaySource();
    if (screen_ == Screen::Player)
        ShowScreen(Screen::Player);
}

void HeadUnit::ShowSource() {
    const Source* const source = FindSource(record_ ? record_->source : kRadioSource);
    if (!source || source == current_)
        return;
    const bool slides = SlidesTo(*source);
    awaited_ = kNoSource;
    current_ = source;
    if (source->screen == SourceScreenKind::Media)
        lastMedium_ = source->id;
    PlaySource();
    if (slides)
        SlideTo(Screen::Player);
    else
        ShowScreen(Screen::Player);
}

/// Lets the current source play, if its device is there.
void HeadUnit::PlaySource() {
    isSourceThere_ = current_->IsPresent(record_);
    if (PlaysMedium()) {
        media_.PlaySource(*current_);
    } else {
        media_.Rest();
        strip_.EnablePlayTime(false);
    }
    sources_.ShowSource(*current_, record_);
    menu_.MarkPlaying(MenuItem::Radio, PlaysRadio());
    menu_.MarkPlaying(MenuItem::Media, PlaysMedium());
}

/// A source slides in over the one that played. Over another screen, which the user is busy with, it does so
/// only when the user has asked for it.
bool HeadUnit::SlidesTo(const Source& source) const {
    if (!current_)
        return false;
    if (screen_ != Screen::Player)
        return source.id == awaited_;
    const bool isSameScreen = current_->screen == source.screen && source.screen != SourceScreenKind::Other;
    return !isSameScreen;
}

/// Shows a screen at once.
void HeadUnit::ShowScreen(Screen screen) {
    Enter(screen);
    SwitchWindows();
}

/// Slides to a screen: the next one comes in, on the way back the one that is left goes out.
void HeadUnit::SlideTo(Screen screen) {
    // The panel lies over the screens and would be in the way.
    if (strip_.ShowsShortcuts()) {
        ShowScreen(screen);
        return;
    }
    const auto way = screen < screen_ ? ScreenSlide::Way::Out : ScreenSlide::Way::In;
    Enter(screen);
    _LQRect place;
    place.left = x_;
    place.top = y_ + kStripHeight;
    place.right = x_ + kWidth;
    place.bottom = y_ + kHeight;
    ScreenSlide slide(place);
    SwitchWindows();
    slide.Play(ShownWindow(), way);
}

/// What changes at once also where the screen slides.
void HeadUnit::Enter(Screen screen) {
    screen_ = screen;
    const bool showsRadio = screen == Screen::Player && PlaysRadio();
    if (!showsRadio)
        radio_.StopSeeking();
    ShowTitle();
    strip_.SetTitleBackBtnShow(!showsRadio);
}

void HeadUnit::SwitchWindows() {
    const CLQWindow* const shown = &ShownWindow();
    if (shown == &other_)
        other_.ShowSource(*current_, record_);
    for (CLQWindow* const screen : Screens())
        screen->SetShow(screen == shown);
}

CLQWindow& HeadUnit::ShownWindow() {
    switch (screen_) {
        case Screen::Presets:
            return presets_;
        case Screen::Menu:
            return menu_;
        case Screen::Sources:
            return sources_;
        case Screen::Gauges:
            return gauges_;
        case Screen::Files:
            return files_;
        case Screen::Settings:
            return settings_;
        case Screen::Player:
            break;
    }
    if (PlaysRadio())
        return radio_;
    if (PlaysMedium())
        return media_;
    return other_;
}

bool HeadUnit::PlaysRadio() const {
    return !current_ || current_->screen == SourceScreenKind::Radio;
}

bool HeadUnit::PlaysMedium() const {
    return current_ && current_->screen == SourceScreenKind::Media && isSourceThere_;
}

void HeadUnit::ShowTitle() {
    const bool isRearranging = screen_ == Screen::Menu && menu_.IsRearranging();
    strip_.SetTitleBackBtnID(isRearranging ? kCaptionDone : kCaptionBack);
    strip_.ShowTitle(Title());
}

int HeadUnit::Title() const {
    switch (screen_) {
        case Screen::Player:
            return current_ ? current_->caption : kCaptionTuner;
        case Screen::Presets:
            return kCaptionPresets;
        case Screen::Menu:
            if (!menu_.IsRearranging())
                return kCaptionMenu;
            return menu_.HasTileInHand() ? kCaptionChoosePlace : kCaptionChooseTile;
        case Screen::Sources:
            return kCaptionSources;
        case Screen::Gauges:
            return kCaptionGauges;
        case Screen::Files:
            return kCaptionFiles;
        case Screen::Settings:
            return kCaptionSettings;
    }
    return kCaptionTuner;
}

}  // namespace korvane::demo
