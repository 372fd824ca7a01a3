#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "KorvaneEx.h"

#include "demo/headunit/SourcesButton.h"
#include "demo/headunit/menu/MenuButton.h"
#include "demo/headunit/radio/Band.h"

namespace korvane::demo {

/// The radio: a number wheel that seeks under a swipe and stops under a touch, a button for the band, and a
/// slider that shows where in the band the radio is and tunes by hand.
class RadioScreen : public CLQWindow {
  public:
    std::wstring GetDialogName() override { return L"Radio"; }
    bool OnInit() override;

    /// Ends a seek, on the frequency that it has reached.
    void StopSeeking();
    CLQButton& GetSourcesButton() { return sourcesButton_; }
    MenuButton& GetMenuButton() { return menuButton_; }

  private:
    void CreateWheel();
    void CreateBandButton();
    void CreateBandSlider();
    void CreateHint();

    void ShowBand();
    void Tune(float frequency);
    void Seek(int hint);

    void OnBandButton(CLQButton* button);
    void OnWheelStep(CLQNumSlider* wheel, float* frequency);
    void OnBandSlider(CLQSliderCtrl* slider, int* step);

    struct Station {
        Band band;
        float frequency;
    };
    Band& CurrentBand() { return stations_[current_].band; }
    float& Frequency() { return stations_[current_].frequency; }

    // The bands, each with the frequency that was last heard on it.
    std::array<Station, 2> stations_ = {Station{MakeFm(), MakeFm().start}, Station{MakeAm(), MakeAm().start}};
    std::size_t current_ = 0;

    CLQNumSlider wheel_;
    CLQButton bandButton_;
    CLQSliderCtrl bandSlider_;
    CLQStatic lowest_;
    CLQStatic highest_;
    CLQStatic hint_;
    SourcesButton sourcesButton_;
    MenuButton menuButton_;
};

}  // namespace korvane::demo
