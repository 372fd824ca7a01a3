#pragma once

#include <functional>
#include <utility>

#include "KorvaneEx.h"

namespace korvane::demo {

/// Where in its track a player is: a slider as wide as the screen, in seconds, with the marks of a passage.
class ProgressBar : public CLQSliderExCtrl {
  public:
    /// The rows of the window that it shows in.
    static constexpr int kTop = 150;
    static constexpr int kHeight = 80;

    /// Places it in a window whose top-left corner is at (x, y) of the screen.
    void Place(int x, int y);
    /// Called when a finger takes hold of it, and when it lets go.
    void WhenHeld(std::function<void(bool isHeld)> handler) { onHeld_ = std::move(handler); }

    bool DoMessage(_LQMessage* msg) override;
    /// Only what shows takes touches; the slider itself reaches further.
    bool CheckPoint(int x, int y) override;

  private:
    std::function<void(bool isHeld)> onHeld_;
    int top_ = 0;  // of the screen
};

}  // namespace korvane::demo
