#pragma once

#include <string>

#include "tools/headunitctl/Outcome.h"

/// What is done to the screen of a running head unit.
namespace korvane::tools {

struct ScreenPoint {
    int x = 0;
    int y = 0;
};

enum class TouchPhase { Press, Move, Release };

/// Touches the screen. Points outside the screen are wrong usage.
Outcome Touch(TouchPhase phase, ScreenPoint at);

/// Touches the screen at `from`, moves to `to` in `ms` milliseconds and lets go there.
Outcome Swipe(ScreenPoint from, ScreenPoint to, int ms);

/// Writes what the screen shows to a PNG file. Touches that were made before are in it.
Outcome TakeScreenshot(const std::string& pngFile);

}  // namespace korvane::tools
