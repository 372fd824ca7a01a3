#pragma once

#include "engine/draw/Surface.h"

namespace korvane {

/// While it lives, drawing into the surface at a screen position comes to lie (dx, dy) further.
class DrawShift {
  public:
    DrawShift(CLQSurface& surface, int dx, int dy);
    DrawShift(const DrawShift&) = delete;
    DrawShift& operator=(const DrawShift&) = delete;
    ~DrawShift();

  private:
    CLQSurface& surface_;
    int originX_ = 0;
    int originY_ = 0;
    _LQRect clip_;
};

/// While it lives, drawing into the surface changes nothing outside the rectangle, nor outside the clip
/// before.
class DrawClip {
  public:
    DrawClip(CLQSurface& surface, const _LQRect& rect);
    DrawClip(const DrawClip&) = delete;
    DrawClip& operator=(const DrawClip&) = delete;
    ~DrawClip();

  private:
    CLQSurface& surface_;
    _LQRect clip_;
};

}  // namespace korvane
