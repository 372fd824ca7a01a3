#include "demo/headunit/radio/PresetsScreen.h"

#include "demo/headunit/Captions.h"
#include "demo/headunit/Label.h"

namespace korvane::demo {

namespace {

constexpr int kColumns = 3;
constexpr int kLeft = 220;
constexpr int kTop = 204;
constexpr int kGap = 18;
constexpr int kColumnWidth = PresetButton::kWidth + kGap;
constexpr int kRowHeight = PresetButton::kHeight + kGap;

}  // namespace

bool PresetsScreen::OnInit() {
    SetBkgSurf(L"SourceBkg.lqi");
    CreateScale();
    CreateReadout();
    CreatePresets();
    ShowBand();
    return true;
}

void PresetsScreen::SetShow(bool show) {
    const bool comes = show && !IsShow();
    CLQWindow::SetShow(show);
    if (comes)
        ShowBand();
}

void PresetsScreen::CreateScale() {
    scale_.Create(40, 78, 150, 384);
    scale_.SetBKgnd(L"TuningBkg.lqi");
    scale_.SetPointgnd(L"TuningPointer.lqi");
    scale_.SetIcongnd(L"TuningPreset.lqi");
    scale_.SetShadowGnd(L"TuningShadow.lqi");
    scale_.SetFontSize(20, 20);
    scale_.AddCallBack(kEventValueChanged, this, &PresetsScreen::OnDrag);
    scale_.AddCallBack(kEventItemChosen, this, &PresetsScreen::OnMarker);
    AddChild(&scale_);
}

void PresetsScreen::CreateReadout() {
    PlaceLabel(frequency_, {220, 450, 84, 176}, 72, eText_Right);
    AddChild(&frequency_);

    PlaceLabel(unit_, {464, 584, 113, 163}, 30, eText_Left, LabelColor::Grey);
    AddChild(&unit_);

    bandButton_.Place(624, 78);
    bandButton_.AddCallBack(kEventReleased, this, &PresetsScreen::OnBandButton);
    AddChild(&bandButton_);
}

void PresetsScreen::CreatePresets() {
    for (int i = 0; i < kPresets; ++i) {
        PresetButton& button = presets_[static_cast<std::size_t>(i)];
        button.Place(kLeft + kColumnWidth * (i % kColumns), kTop + kRowHeight * (i / kColumns), i + 1);
        button.WhenTouched([this, i] { Choose(i); });
        button.WhenHeld([this, i] { Store(i); });
        AddChild(&button);
    }
    PlaceLabel(hint_, {kLeft, kLeft + 540, 434, 466}, 22, eText_HCenter, LabelColor::Grey);
    hint_.SetLangID(kCaptionHoldToStore);
    AddChild(&hint_);
}

void PresetsScreen::ShowBand() {
    const Band& band = tuner_.CurrentBand();
    bandButton_.SetText(band.name);
    unit_.SetText(band.bounds.freqID.c_str());
    scale_.SetBoundScalFreqID(band.bounds);
    scale_.DeleteAllCut();
    for (int i = 0; i < kPresets; ++i)
        scale_.AddShortcut(tuner_.Preset(i));
    ShowStation();
}

void PresetsScreen::ShowStation() {
    const Band& band = tuner_.CurrentBand();
    scale_.SetVaule(tuner_.Frequency());
    frequency_.SetText(band.FullText(tuner_.Frequency()).c_str());
    for (int i = 0; i < kPresets; ++i) {
        presets_[static_cast<std::size_t>(i)].ShowStation(band.FullText(tuner_.Preset(i)),
                                                          tuner_.IsTunedTo(i));
    }
}

void PresetsScreen::OnBandButton(CLQButton*) {
    tuner_.SwitchBand();
    ShowBand();
}

void PresetsScreen::OnDrag(CLQDialSlider*, float* frequency) {
    tuner_.Tune(*frequency);
    ShowStation();
}

void PresetsScreen::OnMarker(CLQDialSlider*, int preset) {
    Choose(preset);
}

void PresetsScreen::Choose(int preset) {
    tuner_.TuneToPreset(preset);
    ShowStation();
}

void PresetsScreen::Store(int preset) {
    tuner_.StorePreset(preset);
    scale_.SetShortCut(preset, tuner_.Preset(preset));
    ShowStation();
    SysBeep();
}

}  // namespace korvane::demo
