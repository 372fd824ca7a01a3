#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "KorvaneEx.h"

#include "demo/headunit/Band.h"

namespace korvane::demo {

/// The radio: a number wheel that seeks under a swipe and stops under a touch, a button for the band, and a
/// slider that shows where in the band the radio is and tunes by hand.
class RadioScreen : public CLQWindow {
  public:
    static constexpr int kWidth = 800;
    static constexpr int kHeight = 480;

    std::wstring GetDialogName() override { return L"Radio"; }
    bool OnInit() override;

  private:
    void CreateStrip();
    void CreateWheel();
    void CreateBandButton();
    void CreateBandSlider();
    void CreateHint();

    void ShowBand();
    void Tune(float frequency);
    void Seek(const wchar_t* hint);
    void StopSeeking();

    void OnBandButton(CLQButton* button);
    void OnWheelStep(CLQNumSlider* wheel, float* frequency);
    void OnBandSlider(CLQSliderCtrl* slider, int* step);
    void OnClock(void*, int);

    struct Station {
        Band band;
        float frequency;
    };
    Band& CurrentBand() { return stations_[current_].band; }
    float& Frequency() { return stations_[current_].frequency; }

    // The bands, each with the frequency that was last heard on it.
    std::array<Station, 2> stations_ = {Station{MakeFm(), MakeFm().start}, Station{MakeAm(), MakeAm().start}};
    std::size_t current_ = 0;

    CLQStatic title_;
    CLQStatic clock_;
    CLQTimer clockTimer_;
    CLQNumSlider wheel_;
    CLQButton bandButton_;
    CLQSliderCtrl bandSlider_;
    CLQStatic lowest_;
    CLQStatic highest_;
    CLQStatic hint_;
};

}  // namespace korvane::demo
