#pragma once

#include <functional>
#include <string>
#include <utility>

#include "KorvaneEx.h"

namespace korvane::demo {

/// A station button: a touch asks for the station, holding the button asks to store the tuned one there.
class PresetButton : public CLQButton {
  public:
    static constexpr int kWidth = 168;
    static constexpr int kHeight = 104;
    static constexpr int kHoldMs = 1500;

    /// Places it with its top-left corner at (x, y) of its window. The number is what it shows, from 1.
    void Place(int x, int y, int number);
    /// Called when the button was touched, and once it was held for the time of kHoldMs; the release that
    /// ends a hold is no touch.
    void WhenTouched(std::function<void()> handler) { onTouched_ = std::move(handler); }
    void WhenHeld(std::function<void()> handler) { onHeld_ = std::move(handler); }

    /// The station's frequency, and whether it is the one that is heard.
    void ShowStation(const std::wstring& frequency, bool isTuned);

    bool DoMessage(_LQMessage* msg) override;

  private:
    void OnReleased();
    void OnHeld(void*, int);

    std::function<void()> onTouched_;
    std::function<void()> onHeld_;
    CLQTextElement* frequency_ = nullptr;  // the button's own
    bool isTuned_ = false;
    CLQTimer holdTimer_;
};

}  // namespace korvane::demo
