#pragma once

#include <string>
#include <vector>

#include "demo/headunit/HeadUnit.h"

namespace korvane::test {

/// The head unit, each of whose screens can be shown without the way that leads to it. It needs an open
/// screen and a device with the head unit's files.
class HeadUnitScreens {
  public:
    HeadUnitScreens();

    struct Screen {
        std::string name;
        CLQWindow* window;
    };
    const std::vector<Screen>& All() const { return screens_; }
    /// Puts a screen, under the title strip, on top of all windows and hides the others of the head unit.
    void ShowAlone(const Screen& screen);

  private:
    demo::HeadUnit headUnit_;
    std::vector<Screen> screens_;
    /// What lies over the screens: windows without a name.
    std::vector<CLQWindow*> strips_;
};

}  // namespace korvane::test
