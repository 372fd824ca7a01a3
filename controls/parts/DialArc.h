#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>

/// The angles of a dial: whole degrees, 0 along the screen's +x axis, growing clockwise.
namespace korvane {

constexpr int kFullTurn = 360;

/// The same direction in [0, 360).
constexpr int NormalAngle(int angle) {
    const int rest = angle % kFullTurn;
    return rest < 0 ? rest + kFullTurn : rest;
}

/// The direction of the point (dx, dy) from the centre, in whole degrees cut off toward zero before they are
/// brought into [0, 360). 0 for the centre itself.
inline int AngleOfPoint(double dx, double dy) {
    // 180 divided by pi in single precision. Every whole degree, 0 excepted, so comes out a trace short and
    // is cut to its neighbour: straight down is 89.
    constexpr double kDegreesPerRadian = 57.29577791868204;
    return NormalAngle(static_cast<int>(std::atan2(dy, dx) * kDegreesPerRadian));
}

/// The arc of a needle, from the angle of mark 0 clockwise to that of the last mark, through 0 when the end
/// is below the start. An arc whose ends are equal has no length. The angles are in [0, 360).
struct DialArc {
    int start = 90;
    int end = 180;
    int marks = 2;  ///< equally spaced; at least 2

    constexpr bool Wraps() const { return end < start; }
    constexpr int Span() const { return Wraps() ? end - start + kFullTurn : end - start; }
    constexpr int ClampMark(int mark) const { return std::clamp(mark, 0, marks - 1); }

    /// The angle of a mark, cut to whole degrees. A mark beyond the ends is the mark at that end.
    constexpr int AngleOfMark(int mark) const {
        const std::int64_t way = std::int64_t{Span()} * ClampMark(mark) / (marks - 1);
        return NormalAngle(start + static_cast<int>(way));
    }

    /// The mark nearest to any angle, the higher one of two. 0 outside the arc and on an arc without length.
    constexpr int MarkNearest(int angle) const {
        if (start == end || !Contains(NormalAngle(angle)))
            return 0;
        const int way = NormalAngle(NormalAngle(angle) - start);
        const std::int64_t gaps = std::int64_t{marks} - 1;
        const std::int64_t halfGap = Span() / (2 * gaps);
        return static_cast<int>((way + halfGap) * gaps / Span());
    }

    /// Gives the angle itself and true when it lies on the arc, whose ends belong to it; else the nearer end,
    /// the start when both are as near, and false. An arc without length holds no angle, not even its own.
    constexpr bool Snap(int angle, int& onArc) const {
        onArc = NormalAngle(angle);
        if (start != end && Contains(onArc))
            return true;
        const int beforeStart = NormalAngle(start - onArc);
        const int afterEnd = NormalAngle(onArc - end);
        onArc = afterEnd < beforeStart ? end : start;
        return false;
    }

  private:
    constexpr bool Contains(int angle) const {
        return Wraps() ? angle >= start || angle <= end : angle >= start && angle <= end;
    }
};

}  // namespace korvane
