#pragma once

#include <cstdint>
#include <gtest/gtest.h>
#include <vector>

#include "engine/Korvane.h"

#include "tests/controls/dials/Surfaces.h"
#include "tests/support/Scene.h"

namespace korvane::test {

constexpr int kBenchWidth = 320;
constexpr int kBenchHeight = 200;
constexpr int kPanelX = 50;
constexpr int kPanelY = 30;
constexpr int kPanelWidth = 100;
constexpr int kPanelHeight = 12;

/// No two pixels of a picture of at most 128 by 64 are alike, nor are two pictures of different `blue`.
CLQSurfHandle Chart(int width, int height, unsigned char blue);

/// A control that shows a picture.
class Panel : public CLQBaseCtrl {
  public:
    Panel(int x, int y, int width, int height, unsigned char blue) : picture_(Chart(width, height, blue)) {
        Create(x, y, width, height);
    }
    void Draw(CLQSurfHandle& target) override;

  private:
    CLQSurfHandle picture_;
};

/// A picture that became visible, cut to the rectangle that was shown.
struct Shown {
    unsigned tick = 0;
    _LQRect rect;
    std::vector<std::uint32_t> pixels;
};

/// A window with a panel on a display that records what it is given, on the manual clock.
class SlideBench : public testing::Test {
  protected:
    SlideBench();
    ~SlideBench() override;

    void Pump();
    /// How long the display takes from now on for each picture, on the manual clock; 0 at first.
    void SetPresentTime(unsigned ms);
    /// The back buffer's pixels in a rectangle, row by row.
    std::vector<std::uint32_t> ScreenPixels(int x, int y, int width, int height);

    /// What the panel's rectangle shows after `way` columns of a slide over a background.
    static std::vector<std::uint32_t> Composed(CLQSurfHandle background, bool in, int way);
    static CLQSurfHandle WindowColor() { return Filled(kPanelWidth, kPanelHeight, {16, 32, 72, 255}); }

    std::vector<Shown>& shown;
    CLQWindow window;
    Panel panel{kPanelX, kPanelY, kPanelWidth, kPanelHeight, 200};
};

/// The visible widths of a panel of 100 columns in slides of 1 to 20 frames, worked out apart from the
/// library with the angle in single and the sine in double precision.
const std::vector<int>& RoundedWidths(int frames);
const std::vector<int>& CutWidths(int frames);

}  // namespace korvane::test
