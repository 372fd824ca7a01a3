#pragma once

#include <functional>
#include <utility>

#include "KorvaneEx.h"

namespace korvane::demo {

/// The button that opens the menu, at the lower left of a screen.
class MenuButton : public CLQButton {
  public:
    void Place();
    /// Called when the button was touched.
    void WhenTouched(std::function<void()> handler) { onTouched_ = std::move(handler); }

  private:
    void OnReleased();

    std::function<void()> onTouched_;
};

}  // namespace korvane::demo
