#include "demo/headunit/radio/RadioScreen.h"

#include "demo/headunit/Captions.h"

namespace korvane::demo {

namespace {

constexpr int kWheelLeft = 248;
constexpr int kWheelTop = 118;
/// Whole numbers stand higher in the wheel than decimals do: this far lower, both look centred in the lens.
constexpr int kWholeNumberDrop = 6;

_LQColor Grey() {
    return {159, 180, 208, 255};
}

/// A line of text inside a rectangle.
void CreateLabel(CLQStatic& label, const _LQRect& place, int size, int style, _LQColor color) {
    label.Create(place.left, place.top, place.right - place.left, place.bottom - place.top);
    label.SetFontSize(size, size);
    label.SetTextStyle(style);
    label.SetTextColor(color);
}

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

    CreateLabel(lowest_, {20, 112, 390, 426}, 22, eText_Right | eText_VCenter, Grey());
    CreateLabel(highest_, {688, 780, 390, 426}, 22, eText_Left | eText_VCenter, Grey());
    AddChild(&lowest_);
    AddChild(&highest_);
}

void RadioScreen::CreateHint() {
    CreateLabel(hint_, {200, 600, 430, 466}, 22, eText_HCenter | eText_VCenter, Grey());
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
    presetsButton_.SetImagePath(0, eImage_Normal, L"Presets_n.lqi");
    presetsButton_.SetImagePath(0, eImage_Pressed, L"Presets_p.lqi");
    presetsButton_.SetImagePath(0, eImage_Focus, L"Presets_f.lqi");
    presetsButton_.SetImagePath(0, eImage_Disabled, L"Presets_d.lqi");
    // The button owns its elements.
    auto* caption = new CLQTextElement;
    caption->SetFontSize(22, 22);
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
