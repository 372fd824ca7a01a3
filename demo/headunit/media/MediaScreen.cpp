#include "demo/headunit/media/MediaScreen.h"

#include "demo/headunit/ButtonLooks.h"
#include "demo/headunit/Captions.h"
#include "demo/headunit/Label.h"
#include "demo/headunit/Source.h"
#include "demo/headunit/media/PlayTimeText.h"

namespace korvane::demo {

namespace {

constexpr int kTransportTop = 268;
constexpr int kRepeatTop = 364;

/// One of three side by side, in the middle of the screen.
void PlaceButton(CLQButton& button, int column, int top, const wchar_t* picture) {
    button.Create(182 + 150 * column, top, 136, 84);
    SetButtonLooks(button, 0, picture);
    button.EnableFocus(true);
}

}  // namespace

bool MediaScreen::OnInit() {
    SetBkgSurf(L"SourceBkg.lqi");
    // The slider reaches below everything else, and what is added later lies on top of it.
    CreateProgress();
    CreateTrackLabels();
    CreateTransportButtons();
    CreateRepeatButtons();
    sourcesButton_.Place(644, 344);
    AddChild(&sourcesButton_);
    menuButton_.Place();
    AddChild(&menuButton_);
    timer_.SetCallBack(this, &MediaScreen::OnTick);
    return true;
}

void MediaScreen::CreateTrackLabels() {
    PlaceLabel(title_, {64, 736, 70, 114}, 32, eText_HCenter);
    title_.EnableTextScroll(true);
    title_.EnableScrollTextTooLong(true);
    title_.SetTextScrollNum(1);
    AddChild(&title_);
    PlaceLabel(artist_, {64, 736, 114, 144}, 20, eText_HCenter, LabelColor::Grey);
    AddChild(&artist_);
}

void MediaScreen::CreateProgress() {
    int x = 0;
    int y = 0;
    GetPos(x, y);
    progress_.Place(x, y);
    progress_.AddCallBack(kEventValueChanged, this, &MediaScreen::OnProgress);
    progress_.WhenHeld([this](bool isHeld) { Hold(isHeld); });
    AddChild(&progress_);

    PlaceLabel(elapsed_, {64, 184, 226, 252}, 20, eText_Left);
    PlaceLabel(state_, {184, 616, 226, 252}, 20, eText_HCenter, LabelColor::Grey);
    PlaceLabel(length_, {616, 736, 226, 252}, 20, eText_Right, LabelColor::Grey);
    for (CLQStatic* const label : {&elapsed_, &state_, &length_})
        AddChild(label);
}

void MediaScreen::CreateTransportButtons() {
    PlaceButton(previous_, 0, kTransportTop, L"media_previous");
    previous_.AddCallBack(kEventReleased, this, &MediaScreen::OnPrevious);
    PlaceButton(play_, 1, kTransportTop, L"media_pause");
    play_.AddCallBack(kEventReleased, this, &MediaScreen::OnPlay);
    PlaceButton(next_, 2, kTransportTop, L"media_next");
    next_.AddCallBack(kEventReleased, this, &MediaScreen::OnNext);
    for (CLQButton* const button : {&previous_, &play_, &next_})
        AddChild(button);
}

void MediaScreen::CreateRepeatButtons() {
    PlaceButton(repeatStart_, 0, kRepeatTop, L"media_a");
    repeatStart_.AddCallBack(kEventReleased, this, &MediaScreen::OnRepeatStart);
    PlaceButton(repeatEnd_, 1, kRepeatTop, L"media_b");
    repeatEnd_.AddCallBack(kEventReleased, this, &MediaScreen::OnRepeatEnd);
    PlaceButton(repeatCancel_, 2, kRepeatTop, L"media_cancel");
    repeatCancel_.AddCallBack(kEventReleased, this, &MediaScreen::OnRepeatCancel);
    for (CLQButton* const button : {&repeatStart_, &repeatEnd_, &repeatCancel_})
        AddChild(button);
}

void MediaScreen::ChangeLanguage() {
    CLQWindow::ChangeLanguage();
    if (player_)
        ShowTrack();
}

void MediaScreen::PlaySource(const Source& source) {
    Rest();
    source_ = &source;
    player_ = &players_.try_emplace(source.id, TracksOf(source.id)).first->second;
    caughtUpMs_ = GetCurrentMS();
    ShowTrack();
    AwaitSecond();
}

void MediaScreen::Rest() {
    timer_.StopTimer();
    if (player_)
        CatchUp();
    player_ = nullptr;
}

void MediaScreen::InsertTracks(int source, Tracks tracks, std::size_t first) {
    const bool isPlaying = player_ && source_->id == source;
    if (isPlaying)
        Rest();
    Player& player = players_.insert_or_assign(source, Player(std::move(tracks))).first->second;
    player.ChooseTrack(first);
    if (isPlaying)
        PlaySource(*source_);
}

void MediaScreen::CatchUp() {
    const unsigned now = GetCurrentMS();
    const unsigned passed = now - caughtUpMs_;
    caughtUpMs_ = now;
    // A press may end without a release.
    isHeld_ = isHeld_ && progress_.IsPressed();
    if (!isHeld_)
        player_->Advance(passed);
}

void MediaScreen::AwaitSecond() {
    if (player_->IsPlaying()) {
        timer_.SetTimer(player_->MsToNextSecond());
        timer_.StartTimer();
    } else {
        timer_.StopTimer();
    }
}

void MediaScreen::ShowTrack() {
    const Track& track = player_->CurrentTrack();
    shownTrack_ = player_->CurrentIndex();
    title_.SetText(track.title.c_str());
    std::wstring line = CLQLangManager::GetInstance()->GetString(kCaptionTrack) + L" " +
                        std::to_wstring(player_->CurrentIndex() + 1) + L"/" +
                        std::to_wstring(player_->TrackCount());
    if (!track.artist.empty())
        line += L"  \u00b7  " + track.artist;
    artist_.SetText(line.c_str());
    length_.SetText(PlayTimeText(track.seconds).c_str());
    progress_.SetRange(0, track.seconds);
    shownSeconds_ = -1;
    ShowTime();
    ShowPassage();
}

void MediaScreen::ShowTime() {
    if (player_->CurrentIndex() != shownTrack_) {
        ShowTrack();
        return;
    }
    const int seconds = player_->Seconds();
    if (seconds == shownSeconds_)
        return;
    shownSeconds_ = seconds;
    progress_.SetValue(seconds);
    elapsed_.SetText(PlayTimeText(seconds).c_str());
    if (onTime_)
        onTime_(seconds);
}

void MediaScreen::ShowPassage() {
    progress_.CancelReapetPlay();
    if (const std::optional<int> start = player_->RepeatStart())
        progress_.EnableReapetAIcon(*start);
    if (const std::optional<int> end = player_->RepeatEnd())
        progress_.EnableReapetBIcon(*end);
    repeatEnd_.EnableWindow(player_->RepeatStart().has_value());
    repeatCancel_.EnableWindow(player_->RepeatStart().has_value());
    ShowState();
}

void MediaScreen::ShowState() {
    const bool isPlaying = player_->IsPlaying();
    SetButtonLooks(play_, 0, isPlaying ? L"media_pause" : L"media_play");
    if (!isPlaying)
        state_.SetLangID(kCaptionPause);
    else
        state_.SetLangID(progress_.IsReapetABShow() ? kCaptionRepeat : source_->hint);
}

void MediaScreen::OnTick(void*, int) {
    CatchUp();
    ShowTime();
    AwaitSecond();
}

void MediaScreen::Hold(bool hold) {
    if (hold)
        CatchUp();
    else
        caughtUpMs_ = GetCurrentMS();
    isHeld_ = hold;
    AwaitSecond();
}

void MediaScreen::OnProgress(CLQSliderCtrl*, int* seconds) {
    CatchUp();
    player_->Seek(*seconds);
    ShowTime();
    AwaitSecond();
}

void MediaScreen::OnPlay(CLQButton*) {
    CatchUp();
    player_->Play(!player_->IsPlaying());
    ShowState();
    AwaitSecond();
}

void MediaScreen::OnPrevious(CLQButton*) {
    CatchUp();
    player_->Previous();
    ShowTrack();
    AwaitSecond();
}

void MediaScreen::OnNext(CLQButton*) {
    CatchUp();
    player_->Next();
    ShowTrack();
    AwaitSecond();
}

void MediaScreen::OnRepeatStart(CLQButton*) {
    CatchUp();
    player_->SetRepeatStart();
    ShowTime();
    ShowPassage();
}

void MediaScreen::OnRepeatEnd(CLQButton*) {
    CatchUp();
    player_->SetRepeatEnd();
    ShowTime();
    ShowPassage();
    AwaitSecond();
}

void MediaScreen::OnRepeatCancel(CLQButton*) {
    player_->CancelRepeat();
    ShowPassage();
}

}  // namespace korvane::demo
