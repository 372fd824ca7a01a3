#pragma once

#include "demo/headunit/tour/TourScript.h"

namespace korvane::demo {

/// What the head unit shows of itself.
TourScript HeadUnitTour();

}  // namespace korvane::demo
