#pragma once

#include "KorvaneEx.h"

namespace korvane::demo {

/// The button that shows the radio's band and goes to the next one.
class BandButton : public CLQButton {
  public:
    /// Places it with its top-left corner at (x, y) of its window.
    void Place(int x, int y);
};

}  // namespace korvane::demo
