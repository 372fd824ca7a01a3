#pragma once

#include "KorvaneEx.h"

namespace korvane::demo {

/// A number with its caption above and its unit behind.
class Readout {
  public:
    static constexpr int kWidth = 260;
    static constexpr int kHeight = 84;

    /// Places it in a window. Caption and unit are texts of the language table; without a unit it is percent.
    void Place(CLQWindow& window, int x, int y, int caption, int unit);
    void Show(int value);

  private:
    CLQStatic caption_;
    CLQStatic number_;
    CLQStatic unit_;
    int value_ = -1;
};

}  // namespace korvane::demo
