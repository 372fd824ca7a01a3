#pragma once

#include "KorvaneEx.h"

namespace korvane::demo {

/// The button that opens the shortcut panel.
class SourcesButton : public CLQButton {
  public:
    /// Places it with its top-left corner at (x, y) of its window.
    void Place(int x, int y);
};

}  // namespace korvane::demo
