#pragma once

#include "demo/headunit/TourScript.h"

namespace korvane::demo {

/// What the head unit shows of itself.
TourScript HeadUnitTour();

}  // namespace korvane::demo
