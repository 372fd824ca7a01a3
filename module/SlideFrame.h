#pragma once

#include <cmath>
#include <cstdint>

/// The arithmetic of a single frame of a slide.
namespace korvane::slide {

/// Slides round the visible width in different ways; the pixel between them is meant.
enum class Rounding { Nearest, TowardZero };

/// How many of the control's `width` columns a slide has covered after a frame, counted from 1 to `frames`.
inline int WayAfter(int frame, int frames, int width, Rounding rounding) {
    constexpr float kQuarterTurn = 1.5707964f;
    if (frame == frames)
        return width;
    // The angle is a float, the sine a double: the last bit decides where a width is nearly whole.
    const float angle = static_cast<float>(frame) * kQuarterTurn / static_cast<float>(frames);
    const double way = width * std::sin(static_cast<double>(angle));
    return static_cast<int>(rounding == Rounding::Nearest ? way + 0.5 : way);
}

/// The milliseconds to wait before a frame is shown that took `paintMs` to paint. A clock that was set back
/// meanwhile makes it a longer wait.
constexpr std::uint32_t WaitAfter(std::uint32_t paintMs) {
    constexpr std::uint32_t kFrameMs = 80;
    const bool hasTimeLeft = static_cast<std::int32_t>(paintMs) < static_cast<std::int32_t>(kFrameMs);
    return hasTimeLeft ? kFrameMs - paintMs : 0;
}

}  // namespace korvane::slide
