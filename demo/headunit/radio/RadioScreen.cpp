#include "demo/headunit/radio/RadioScreen.h"

#include "demo/headunit/ButtonLooks.h"
#include "demo/headunit/Captions.h"
#include "demo/headunit/Label.h"

namespace korvane::demo {

namespace {

constexpr int kWheelLeft = 248;
constexpr int kWheelTop = 118;
/// Whole numbers stand higher in the wheel than decimals do: this far lower, both look centred in the lens.
constexpr int kWholeNumberDrop = 6;

}  // namespace

bool RadioScreen::OnInit() {
    SetBkgSurf(L"RadioBkg.lqi");
    CreateWheel();
    CreateBandSlider();
    CreateHint();
    CreateButtons();
    ShowBand();
    return true;
}

void RadioScreen::SetShow(bool show) {
    const bool comes = show && !IsShow();
    CLQWindow::SetShow(show);
    if (comes)
        ShowBand();
}

void RadioScreen::CreateWheel() {
    wheel_.Create(kWheelLeft, kWheelTop, 312, 212);
    wheel_.SetFont(CLQFontManager::GetInstance()->GetDefaultFont());
    wheel_.SetFontSize(72, 72);
    wheel_.SetSeekUpGnd(L"SeekUp.lqi");
    wheel_.SetSeekDownGnd(L"SeekDown.lqi");
    // The three callbacks share one context.
    wheel_.SetMoveUpCallBack(
        [](void* screen, void*) { static_cast<RadioScreen*>(screen)->Seek(kCaptionSeekingUp); }, this);
    wheel_.SetMoveDownCallBack(
        [](void* screen, void*) { static_cast<RadioScreen*>(screen)->Seek(kCaptionSeekingDown); }, this);
    wheel_.SetMoveStopCallBack([](void* screen, void*) { static_cast<RadioScreen*>(screen)->StopSeeking(); },
                               this);
    wheel_.AddCallBack(kEventValueChanged, this, &RadioScreen::OnWheelStep);
    AddChild(&wheel_);
}

void RadioScreen::CreateBandSlider() {
    bandSlider_.Create(120, 390, 560, 36);
    bandSlider_.SetBkgSurf(L"BandTrack.lqi");
    bandSlider_.SetFillSurf(L"BandFill.lqi");
    bandSlider_.SetThumbSurf(L"BandThumb.lqi");
    bandSlider_.SetThumbPressedSurf(L"BandThumbPressed.lqi");
    bandSlider_.AddCallBack(kEventValueChanged, this, &RadioScreen::OnBandSlider);
    AddChild(&bandSlider_);

    PlaceLabel(lowest_, {20, 112, 390, 426}, 22, eText_Right, LabelColor::Grey);
    PlaceLabel(highest_, {688, 780, 390, 426}, 22, eText_Left, LabelColor::Grey);
    AddChild(&lowest_);
    AddChild(&highest_);
}

void RadioScreen::CreateHint() {
    PlaceLabel(hint_, {200, 600, 430, 466}, 22, eText_HCenter, LabelColor::Grey);
    hint_.SetLangID(kCaptionSwipeToSeek);
    AddChild(&hint_);
}

void RadioScreen::CreateButtons() {
    bandButton_.Place(44, 172);
    bandButton_.AddCallBack(kEventReleased, this, &RadioScreen::OnBandButton);
    AddChild(&bandButton_);
    sourcesButton_.Place(620, 172);
    AddChild(&sourcesButton_);
    menuButton_.Place();
    AddChild(&menuButton_);

    presetsButton_.Create(612, 430, 168, 46);
    SetButtonLooks(presetsButton_, 0, L"Presets");
    // The button owns its elements.
    auto* caption = new CLQTextElement;
    caption->SetFontSize(20, 20);
    caption->SetRect(44, 6, 118, 32);
    presetsButton_.AddGUIElement(caption);
    presetsButton_.SetLangID(kCaptionPresets);
    presetsButton_.EnableFocus(true);
    presetsButton_.AddCallBack(kEventReleased, this, &RadioScreen::OnPresetsButton);
    AddChild(&presetsButton_);
}

void RadioScreen::ShowBand() {
    const Band& band = tuner_.CurrentBand();
    bandButton_.SetText(band.name);
    lowest_.SetText(band.Text(band.bounds.minimum).c_str());
    highest_.SetText(band.Text(band.bounds.maximum).c_str());
    bandSlider_.SetRange(0, band.StepCount());
    bandSlider_.SetValue(tuner_.Step());
    wheel_.MoveTo(kWheelLeft, kWheelTop + (band.bounds.decimal ? 0 : kWholeNumberDrop));
    wheel_.SetBoundScalFreqID(band.bounds);
    wheel_.SetVaule(tuner_.Frequency());
}

void RadioScreen::Tune(float frequency) {
    tuner_.Tune(frequency);
    wheel_.SetVaule(tuner_.Frequency());
    bandSlider_.SetValue(tuner_.Step());
}

void RadioScreen::Seek(int hint) {
    hint_.SetLangID(hint);
    wheel_.StartMove();
}

void RadioScreen::StopSeeking() {
    wheel_.MoveStop();
    // Settles the rows, which stopped in the middle of a step, on the last frequency that was reached.
    wheel_.SetVaule(tuner_.Frequency());
    hint_.SetLangID(kCaptionSwipeToSeek);
}

void RadioScreen::OnBandButton(CLQButton*) {
    StopSeeking();
    tuner_.SwitchBand();
    ShowBand();
}

void RadioScreen::OnWheelStep(CLQNumSlider*, float* frequency) {
    Tune(*frequency);
}

void RadioScreen::OnBandSlider(CLQSliderCtrl*, int* step) {
    StopSeeking();
    Tune(tuner_.CurrentBand().FrequencyOf(*step));
}

void RadioScreen::OnPresetsButton() {
    if (onPresetsWanted_)
        onPresetsWanted_();
}

}  // namespace korvane::demo
