#pragma once

/// How the number wheel rolls and where it paints. Positions are in pixels from the control's top-left
/// corner.
namespace korvane::num_slider {

/// A step of the wheel is 76 pixels long and takes four ticks.
constexpr int kTickPeriodMs = 50;
constexpr int kTickPixels = 19;
constexpr int kStepPixels = 76;

/// The current value stands in the middle one of three rows; a rolling wheel needs one more below them.
constexpr int kRowsAtRest = 3;
constexpr int kRowsRolling = 4;
constexpr int kMiddleRow = 1;

/// A row of the odometer, scrolled by the offset of its column. Rows stand a pixel closer than a step is
/// long, which never shows as a jump: the tick that would complete a step paints the next value at rest
/// instead.
constexpr int kOdometerRowPitch = 75;
constexpr int OdometerRowTop(int row, int offset) {
    return kOdometerRowPitch * row + offset;
}

/// A row of the wheel of whole numbers.
constexpr int kCounterRowPitch = 76;
constexpr int kCounterRise = 8;
constexpr int CounterRowTop(int row, int offset) {
    return kCounterRowPitch * row + offset - kCounterRise;
}

/// Right edge of a whole number. Two fixed columns: numbers of four digits end further to the right.
constexpr int CounterRight(int number) {
    return number < 1000 ? 205 : 227;
}

/// What the columns of the odometer are as wide as: up to the right edges of integer, point and fraction.
constexpr wchar_t kIntegerMeasure[] = L"100";
constexpr wchar_t kPointMeasure[] = L"100.";
constexpr wchar_t kFractionMeasure[] = L"100.10";

/// The wheel takes touches in the width of this text and the height of three rows of its font.
constexpr wchar_t kTouchMeasure[] = L"111.11";
constexpr int kTouchRows = 3;
/// A release this far from its press, or less, is no swipe.
constexpr int kSwipeTolerance = 1;

constexpr int kLabelLeft = 235;
constexpr int kLabelTop = 115;
constexpr int kLabelWidth = 70;
constexpr int kLabelHeight = 30;
constexpr int kLabelFontSize = 30;

constexpr int kSeekLeft = 126;
constexpr int kSeekUpTop = 35;
constexpr int kSeekDownAboveBottom = 60;

}  // namespace korvane::num_slider
