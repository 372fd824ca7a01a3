#pragma once

#include <cstdint>

/// Where the tuning scale paints, in pixels from the control's top-left corner, and how far a drag tunes.
namespace korvane::dial_slider {

/// A step is one row of the scale, and as much of a drag.
constexpr int kRowPitch = 12;
constexpr int kTickHeight = 3;

constexpr int RoundUpToEven(int number) {
    return number % 2 != 0 ? number + 1 : number;
}

constexpr int TickCount(int height) {
    return height / kRowPitch;
}

/// Rows above the one of the current value, and so its index.
constexpr int HalfSpan(int height) {
    return RoundUpToEven(height / 2 / kRowPitch);
}

/// Where the pointer and a preset at the current value stand. Not always at the row of the current value: at
/// a height of 264 that row lies at 144 and this at 132.
constexpr int Middle(int height) {
    return RoundUpToEven(height / 2);
}

/// The tick of a step, counted from any multiple of ten: each tenth is long and has a label, the others are
/// medium and short in turn.
struct Tick {
    int left = 0;
    int right = 0;
    bool isLabelled = false;
};
constexpr Tick TickOf(int step) {
    if (step % 10 == 0)
        return {28, 60, true};
    return step % 2 != 0 ? Tick{38, 53, false} : Tick{33, 53, false};
}

/// The vertical line, left of the control's middle.
constexpr int kLineLeftOfMiddle = 15;
constexpr int kLineWidth = 3;

constexpr int kLabelAboveTick = 11;
constexpr int kPresetNumberLeft = 6;
constexpr int kPointerBelowMiddle = 6;

/// Steps that a drag of this many pixels upwards tunes: every row that it began counts. Below zero for a drag
/// downwards, and none for one of less than 5 pixels.
constexpr int DragSteps(std::int64_t upwards) {
    constexpr int kTolerance = 5;
    const std::int64_t length = upwards < 0 ? -upwards : upwards;
    if (length < kTolerance)
        return 0;
    const auto rows = static_cast<int>((length + kRowPitch - 1) / kRowPitch);
    return upwards < 0 ? -rows : rows;
}

}  // namespace korvane::dial_slider
