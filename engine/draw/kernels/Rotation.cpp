#include "engine/draw/kernels/Rotation.h"

#include <algorithm>
#include <cmath>

#include "engine/draw/kernels/SineTable.h"

namespace korvane::kernels {
namespace {

constexpr std::int64_t kOne = 65536;

/// False for NaN too.
bool IsUsableFactor(float factor) {
    return factor >= 1.0F / 1024 && factor <= 1024.0F;
}

/// 2.30 to 16.16, divided by a factor. Only operations whose result IEEE 754 prescribes.
std::int64_t Divide(std::int32_t sine, float factor) {
    return std::llround(static_cast<double>(sine) / (static_cast<double>(factor) * 16384.0));
}

std::int64_t FloorDiv(std::int64_t a, std::int64_t b) {
    const std::int64_t quotient = a / b;
    return quotient - ((a % b != 0 && (a < 0) != (b < 0)) ? 1 : 0);
}

/// Narrows [begin, end) to the integers x with low <= start + step * x < high.
void Narrow(std::int64_t start, std::int64_t step, std::int64_t low, std::int64_t high, std::int64_t& begin,
            std::int64_t& end) {
    if (step == 0) {
        if (start < low || start >= high) {
            end = begin;
        }
        return;
    }
    // For a falling line, mirror it: -high < -(start + step * x) <= -low.
    const bool rises = step > 0;
    const std::int64_t slope = rises ? step : -step;
    const std::int64_t first = rises ? low - start : start - high + 1;
    const std::int64_t behind = rises ? high - start : start - low + 1;
    begin = std::max(begin, FloorDiv(first + slope - 1, slope));
    end = std::min(end, FloorDiv(behind + slope - 1, slope));
}

/// The positions at which the filter reaches a pixel of a source side of this size: [first, second).
struct Reach {
    std::int64_t low;
    std::int64_t high;
};

Reach ReachOf(Filter filter, int side) {
    const std::int64_t size = std::int64_t{side} * kOne;
    if (filter == Filter::Nearest) {
        return {-kOne / 2, size - kOne / 2};
    }
    return {-kOne + 1, size};
}

}  // namespace

bool MakeInverseMap(const Rotation& rotation, InverseMap& map) {
    if (rotation.source == nullptr || rotation.sourceWidth < 1 || rotation.sourceWidth > kLargestSide ||
        rotation.sourceHeight < 1 || rotation.sourceHeight > kLargestSide ||
        !IsUsableFactor(rotation.scaleX) || !IsUsableFactor(rotation.scaleY)) {
        return false;
    }
    const std::int32_t sine = SineOf(rotation.angle);
    const std::int32_t cosine = CosineOf(rotation.angle);
    map.xx = Divide(cosine, rotation.scaleX);
    map.xy = Divide(sine, rotation.scaleX);
    map.yx = Divide(-sine, rotation.scaleY);
    map.yy = Divide(cosine, rotation.scaleY);
    return true;
}

Box BoundsOf(const Box& clip, const Rotation& rotation, const InverseMap& map) {
    const auto xx = static_cast<double>(map.xx);
    const auto xy = static_cast<double>(map.xy);
    const auto yx = static_cast<double>(map.yx);
    const auto yy = static_cast<double>(map.yy);
    const double determinant = xx * yy - xy * yx;
    double left = clip.x;
    double top = clip.y;
    double right = left + clip.width;
    double bottom = top + clip.height;
    if (determinant != 0.0) {
        double lowX = INFINITY;
        double highX = -INFINITY;
        double lowY = INFINITY;
        double highY = -INFINITY;
        for (int corner = 0; corner < 4; ++corner) {
            const double u =
                ((corner & 1) != 0 ? rotation.sourceWidth : -1.0) - static_cast<double>(rotation.pivotX);
            const double v =
                ((corner & 2) != 0 ? rotation.sourceHeight : -1.0) - static_cast<double>(rotation.pivotY);
            const double dx = (yy * u - xy * v) * 65536.0 / determinant;
            const double dy = (xx * v - yx * u) * 65536.0 / determinant;
            lowX = std::min(lowX, dx);
            highX = std::max(highX, dx);
            lowY = std::min(lowY, dy);
            highY = std::max(highY, dy);
        }
        // One pixel more on each side makes up for the rounding of doubles; the spans decide exactly.
        left = std::max(left, std::floor(rotation.targetX + lowX) - 1);
        top = std::max(top, std::floor(rotation.targetY + lowY) - 1);
        right = std::min(right, std::ceil(rotation.targetX + highX) + 2);
        bottom = std::min(bottom, std::ceil(rotation.targetY + highY) + 2);
    }
    if (!(left < right && top < bottom)) {
        return Box{};
    }
    return Box{static_cast<int>(left), static_cast<int>(top), static_cast<int>(right - left),
               static_cast<int>(bottom - top)};
}

RowSpan SpanOf(const Rotation& rotation, const InverseMap& map, int y, int left, int right) {
    const std::int64_t dy = std::int64_t{y} - rotation.targetY;
    const std::int64_t startU = std::int64_t{rotation.pivotX} * kOne + map.xy * dy;
    const std::int64_t startV = std::int64_t{rotation.pivotY} * kOne + map.yy * dy;
    std::int64_t begin = std::int64_t{left} - rotation.targetX;
    std::int64_t end = std::int64_t{right} - rotation.targetX;
    const Reach reachU = ReachOf(rotation.filter, rotation.sourceWidth);
    const Reach reachV = ReachOf(rotation.filter, rotation.sourceHeight);
    Narrow(startU, map.xx, reachU.low, reachU.high, begin, end);
    Narrow(startV, map.yx, reachV.low, reachV.high, begin, end);
    if (begin >= end) {
        return RowSpan{};
    }
    return RowSpan{static_cast<int>(begin + rotation.targetX), static_cast<int>(end + rotation.targetX),
                   startU + map.xx * begin, startV + map.yx * begin};
}

}  // namespace korvane::kernels
