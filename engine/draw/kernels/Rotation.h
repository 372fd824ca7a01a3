#pragma once

#include <cstdint>

#include "engine/draw/kernels/Kernels.h"

namespace korvane::kernels {

/// From target to source: the position of target pixel (targetX + dx, targetY + dy) is
/// (pivotX + xx * dx + xy * dy, pivotY + yx * dx + yy * dy). 16.16 fixed point.
struct InverseMap {
    std::int64_t xx = 0;
    std::int64_t xy = 0;
    std::int64_t yx = 0;
    std::int64_t yy = 0;
};

/// False when nothing can be drawn: sizes or factors outside their ranges.
bool MakeInverseMap(const Rotation& rotation, InverseMap& map);

/// The part of `clip` that the turned image can touch.
Box BoundsOf(const Box& clip, const Rotation& rotation, const InverseMap& map);

/// The pixels [begin, end) of a target row that the source touches, and where the first of them lies in it.
struct RowSpan {
    int begin = 0;
    int end = 0;
    std::int64_t u = 0;
    std::int64_t v = 0;
};

/// The span of row y within [left, right). Exact: a pixel belongs to it when its position is above -1 and
/// below the source's size in both directions (for the nearest filter: when it rounds to a pixel of the
/// source).
RowSpan SpanOf(const Rotation& rotation, const InverseMap& map, int y, int left, int right);

}  // namespace korvane::kernels
