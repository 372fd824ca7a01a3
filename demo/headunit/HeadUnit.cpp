#include "demo/headunit/HeadUnit.h"

#include "demo/headunit/Captions.h"
#include "demo/headunit/LanguageFile.h"
#include "demo/headunit/Source.h"

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
    radio_.Create(x, y, kWidth, kHeight);
    radio_.OnInit();
    other_.Create(x, y, kWidth, kHeight);
    other_.OnInit();
    // The last one lies on top of the others.
    strip_.Create(x, y, kWidth, kHeight);
    strip_.OnInit();

    radio_.GetSourcesButton().AddCallBack(kEventReleased, &strip_, &TitleStrip::OpenShortcuts);
    other_.GetSourcesButton().AddCallBack(kEventReleased, &strip_, &TitleStrip::OpenShortcuts);
    strip_.SetTitleBackBtnID(kCaptionBack);
    strip_.WhenBack([this] { OnBack(); });
    strip_.WhenSystemChanged([this](int item) { OnSystemChanged(item); });
    ShowZone();
    ShowSource();
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
    const HWND mainWindow = FindWindowW(nullptr, kMainWindowName);
    if (mainWindow)
        PostMessageW(mainWindow, kMainSourceChosen, 1, kRadioSource);
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
    const bool isRadio = source->screen == SourceScreenKind::Radio;
    if (!isRadio) {
        radio_.StopSeeking();
        other_.ShowSource(*source);
    }
    radio_.SetShow(isRadio);
    other_.SetShow(!isRadio);
    strip_.ShowTitle(source->caption);
    strip_.SetTitleBackBtnShow(!isRadio);
    if (source->hasPlayTime)
        strip_.StartPlayTime();
    else
        strip_.StopPlayTime();
}

}  // namespace korvane::demo
