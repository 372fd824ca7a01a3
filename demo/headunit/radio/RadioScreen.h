#pragma once

#include <functional>
#include <string>
#include <utility>

#include "KorvaneEx.h"

#include "demo/headunit/SourcesButton.h"
#include "demo/headunit/menu/MenuButton.h"
#include "demo/headunit/radio/BandButton.h"
#include "demo/headunit/radio/Tuner.h"

namespace korvane::demo {

/// The radio: a number wheel that seeks under a swipe and stops under a touch, a button for the band, and a
/// slider that shows where in the band the radio is and tunes by hand.
class RadioScreen : public CLQWindow {
  public:
    /// The tuner outlives the screen.
    explicit RadioScreen(Tuner& tuner) : tuner_(tuner) {}

    std::wstring GetDialogName() override { return L"Radio"; }
    bool OnInit() override;
    /// Shows what is tuned by then: other screens tune, too.
    void SetShow(bool show) override;

    /// Ends a seek, on the frequency that it has reached.
    void StopSeeking();
    CLQButton& GetSourcesButton() { return sourcesButton_; }
    MenuButton& GetMenuButton() { return menuButton_; }
    /// Called when the button of the presets was touched.
    void WhenPresetsWanted(std::function<void()> handler) { onPresetsWanted_ = std::move(handler); }

  private:
    void CreateWheel();
    void CreateBandSlider();
    void CreateButtons();
    void CreateHint();

    void ShowBand();
    void Tune(float frequency);
    void Seek(int hint);

    void OnBandButton(CLQButton* button);
    void OnWheelStep(CLQNumSlider* wheel, float* frequency);
    void OnBandSlider(CLQSliderCtrl* slider, int* step);
    void OnPresetsButton();

    Tuner& tuner_;
    std::function<void()> onPresetsWanted_;

    CLQNumSlider wheel_;
    BandButton bandButton_;
    CLQSliderCtrl bandSlider_;
    CLQStatic lowest_;
    CLQStatic highest_;
    CLQStatic hint_;
    SourcesButton sourcesButton_;
    MenuButton menuButton_;
    CLQButton presetsButton_;
};

}  // namespace korvane::demo
