#pragma once

#include <functional>
#include <utility>

#include "KorvaneEx.h"

namespace korvane::demo {

/// A row of the settings: a caption, and a switch that is on or off. A touch anywhere on it asks for the
/// other state; the switch shows that once it is told so.
class SettingSwitch : public CLQButton {
  public:
    static constexpr int kWidth = 450;
    static constexpr int kHeight = 84;

    /// Places it with its top-left corner at (x, y) of its window; off at first.
    void Place(int x, int y, int caption);
    void ShowState(bool isOn);
    /// Called with the state that the user wants.
    void WhenTouched(std::function<void(bool on)> handler) { onTouched_ = std::move(handler); }

  private:
    void ShowKnob();
    void OnReleased();

    bool isOn_ = false;
    std::function<void(bool on)> onTouched_;
};

}  // namespace korvane::demo
