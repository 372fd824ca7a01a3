#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "controls/DialScaleEx.h"
#include "platform/coredll.h"

#include "tests/controls/dials/Surfaces.h"
#include "tests/support/Scene.h"

namespace korvane::test {

constexpr int kGaugeX = 20;
constexpr int kGaugeY = 10;
constexpr int kGaugeSize = 160;
constexpr int kCanvasSize = 240;

/// One colour, with a bright far end that tells where it points.
inline CLQSurfHandle NeedleImage(int length, int height, _LQColor color) {
    CLQSurfHandle needle = Filled(length, height, color);
    _LQColor tip = {255, 255, 255, 255};
    needle.FillRect(length - 4, 0, length, height, tip, false);
    return needle;
}

/// The three needles of most tests: the longest and thickest is painted first.
inline std::array<CLQSurfHandle, 3> Needles() {
    return {NeedleImage(70, 9, {220, 40, 40, 255}), NeedleImage(50, 7, {40, 200, 60, 255}),
            NeedleImage(30, 4, {60, 90, 230, 255})};
}

/// A gauge that lets tests use what a derived class can use.
class TestGauge : public CLQDialScaleEx {
  public:
    using CLQDialScaleEx::CalcAngleFromNum;
    using CLQDialScaleEx::CalcDialScaleAngle;
    using CLQDialScaleEx::CalcNumFromAngle;
    using CLQDialScaleEx::GetAngleInRange;

    /// Sets the gauge up as an application does.
    void Prepare() {
        Create(kGaugeX, kGaugeY, kGaugeSize, kGaugeSize);
        std::array<CLQSurfHandle, 3> needles = Needles();
        SetPointerSurf(needles[0], needles[1], needles[2]);
    }

    void SetArc(int i, int start, int end, int marks) {
        SetStartAngle(i, start);
        SetEndAngle(i, end);
        SetDialScaleNum(i, marks);
    }
};

/// What the gauge paints without a window, over a transparent canvas.
inline std::vector<std::uint32_t> LooksOf(CLQDialScaleEx& gauge) {
    CLQSurfHandle canvas = NewSurface(kCanvasSize, kCanvasSize);
    gauge.Draw(canvas);
    return PixelsOf(canvas);
}

/// A needle image turned about a point of the canvas.
struct Turned {
    CLQSurfHandle image;
    int pivotX;
    int pivotY;
    int angle;
};

inline std::vector<std::uint32_t> LooksOf(const std::vector<Turned>& needles, int x, int y) {
    CLQSurfHandle canvas = NewSurface(kCanvasSize, kCanvasSize);
    for (Turned needle : needles)
        canvas.RotateBlt(needle.image, x, y, 1.0f, 1.0f, needle.pivotX, needle.pivotY, needle.angle, 2);
    return PixelsOf(canvas);
}

/// What the three needles of `Needles` look like at these angles in the middle of a gauge.
inline std::vector<std::uint32_t> LooksAt(int angle0, int angle1, int angle2) {
    const std::array<CLQSurfHandle, 3> needles = Needles();
    return LooksOf({{needles[0], 0, 4, angle0}, {needles[1], 0, 3, angle1}, {needles[2], 0, 2, angle2}},
                   kGaugeX + kGaugeSize / 2, kGaugeY + kGaugeSize / 2);
}

}  // namespace korvane::test
