#pragma once

#include <array>
#include <string>

#include "KorvaneEx.h"

#include "demo/headunit/radio/BandButton.h"
#include "demo/headunit/radio/PresetButton.h"
#include "demo/headunit/radio/Tuner.h"
#include "demo/headunit/radio/TuningScale.h"

namespace korvane::demo {

/// The radio's second page: a scale that tunes under a drag and shows where the presets lie, and a button for
/// each preset, which tunes to it and, held, stores what is tuned.
class PresetsScreen : public CLQWindow {
  public:
    /// The tuner outlives the screen.
    explicit PresetsScreen(Tuner& tuner) : tuner_(tuner) {}

    std::wstring GetDialogName() override { return L"Presets"; }
    bool OnInit() override;
    /// Shows what is tuned by then: other screens tune, too.
    void SetShow(bool show) override;

  private:
    void CreateScale();
    void CreateReadout();
    void CreatePresets();

    void ShowBand();
    void ShowStation();

    void OnBandButton(CLQButton* button);
    void OnDrag(CLQDialSlider* scale, float* frequency);
    void OnMarker(CLQDialSlider* scale, int preset);
    void Choose(int preset);
    void Store(int preset);

    Tuner& tuner_;
    TuningScale scale_;
    CLQStatic frequency_;
    CLQStatic unit_;
    BandButton bandButton_;
    std::array<PresetButton, kPresets> presets_;
    CLQStatic hint_;
};

}  // namespace korvane::demo
