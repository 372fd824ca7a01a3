#pragma once

#include <array>
#include <cstddef>

#include "KorvaneEx.h"

#include "demo/headunit/radio/Band.h"

namespace korvane::demo {

/// The radio's receiver: two bands, each with the frequency that was last heard on it and with its presets.
/// The presets last: a file of the user's settings on the device keeps them.
class Tuner {
  public:
    /// Starts on FM. A preset that was not stored, or not as a station of its band, is the factory's.
    Tuner();

    const Band& CurrentBand() const { return Current().band; }
    void SwitchBand() { current_ = (current_ + 1) % bands_.size(); }

    /// The tuned frequency, as steps from the band's lower bound and in the band's unit.
    int Step() const { return Current().step; }
    float Frequency() const { return CurrentBand().FrequencyOf(Step()); }
    /// Tunes to the band's step that is nearest; ends at its bounds.
    void Tune(float frequency);

    /// The presets of the band, from 0 to kPresets - 1.
    float Preset(int index) const;
    bool IsTunedTo(int index) const;
    void TuneToPreset(int index);
    /// Stores the tuned frequency.
    void StorePreset(int index);

  private:
    struct TunedBand {
        Band band;
        int step = 0;
        std::array<int, kPresets> presets = {};  // as steps
    };

    TunedBand Load(const Band& band);
    TunedBand& Current() { return bands_[current_]; }
    const TunedBand& Current() const { return bands_[current_]; }

    CLQIniReadWrite file_;
    std::array<TunedBand, 2> bands_;
    std::size_t current_ = 0;
};

}  // namespace korvane::demo
