#include "demo/headunit/radio/Tuner.h"

#include <algorithm>
#include <string>

namespace korvane::demo {

namespace {

/// A section for each band, in it the presets' numbers and their frequencies in kilohertz.
constexpr wchar_t kFile[] = L"\\NandFlash\\Application\\Profile\\LQ_RadioPresets.ini";

std::wstring Key(std::size_t index) {
    return std::to_wstring(index + 1);
}

}  // namespace

Tuner::Tuner() {
    file_.SetFileName(kFile);
    bands_ = {Load(MakeFm()), Load(MakeAm())};
}

Tuner::TunedBand Tuner::Load(const Band& band) {
    TunedBand tuned;
    tuned.band = band;
    tuned.step = band.StepOf(band.start);
    for (std::size_t i = 0; i < tuned.presets.size(); ++i) {
        const int stored = band.StepAt(file_.GetInt(band.name, Key(i).c_str(), 0));
        tuned.presets[i] = stored >= 0 ? stored : band.StepOf(band.presets[i]);
    }
    return tuned;
}

void Tuner::Tune(float frequency) {
    const Band& band = CurrentBand();
    // On the band's grid: the rounding errors of many steps would add up, and step over the band's end.
    Current().step = std::clamp(band.StepOf(frequency), 0, band.StepCount());
}

float Tuner::Preset(int index) const {
    return CurrentBand().FrequencyOf(Current().presets[static_cast<std::size_t>(index)]);
}

bool Tuner::IsTunedTo(int index) const {
    return Current().presets[static_cast<std::size_t>(index)] == Step();
}

void Tuner::TuneToPreset(int index) {
    Current().step = Current().presets[static_cast<std::size_t>(index)];
}

void Tuner::StorePreset(int index) {
    const auto at = static_cast<std::size_t>(index);
    Current().presets[at] = Step();
    file_.SetValue(CurrentBand().name, Key(at).c_str(), CurrentBand().KilohertzOf(Step()), true);
    file_.Update();
}

}  // namespace korvane::demo
