#include "tests/kernels/Reference.h"

#include <algorithm>
#include <cmath>

namespace reference {
namespace {

constexpr long double kPi = 3.14159265358979323846264338327950288L;

std::uint32_t Channel(Pixel pixel, int index) {
    return (pixel >> (8 * index)) & 255U;
}

template <class Function>
Pixel EachChannel(Function function) {
    Pixel result = 0;
    for (int index = 0; index < 4; ++index) {
        result |= function(index) << (8 * index);
    }
    return result;
}

struct Tap {
    int index;
    std::uint32_t weight;
};

/// The left or upper pixel that a scaled position mixes and the weight of its neighbour.
Tap TapOf(int position, int sourceSize, int targetSize) {
    const std::int64_t numerator = (2 * std::int64_t{position} + 1) * sourceSize * 32768;
    const auto fixed = numerator / targetSize - 32768;
    const std::int64_t last = std::int64_t{sourceSize - 1} * 65536;
    const std::int64_t clamped = std::min(std::max<std::int64_t>(fixed, 0), last);
    return {static_cast<int>(clamped / 65536), static_cast<std::uint32_t>(clamped % 65536 / 256)};
}

std::int64_t Entry(long double trigonometric, float factor) {
    // The table of 2.30 constants is part of the contract; so is the rounding of each matrix entry.
    const double sine = static_cast<double>(std::llround(trigonometric * 1073741824.0L));
    return std::llround(sine / (static_cast<double>(factor) * 16384.0));
}

std::int64_t FloorShift(std::int64_t value, int divisor) {
    return value >= 0 ? value / divisor : -((-value + divisor - 1) / divisor);
}

}  // namespace

std::uint32_t Div255(std::uint32_t x) {
    return (2 * x + 255) / 510;
}

Pixel Over(Pixel source, Pixel target) {
    const std::uint32_t inverse = 255 - Channel(source, 3);
    return EachChannel(
        [=](int i) { return std::min(255U, Channel(source, i) + Div255(Channel(target, i) * inverse)); });
}

Pixel MaskOver(Pixel color, std::uint32_t mask, Pixel target) {
    const std::uint32_t inverse = 255 - Div255(Channel(color, 3) * mask);
    return EachChannel(
        [=](int i) { return Div255(Channel(color, i) * mask + Channel(target, i) * inverse); });
}

Pixel Lerp(Pixel a, Pixel b, std::uint32_t weight) {
    return EachChannel(
        [=](int i) { return (Channel(a, i) * (256 - weight) + Channel(b, i) * weight + 128) / 256; });
}

Pixel Scaled(const korvane::kernels::Scaling& scaling, int x, int y) {
    const Tap across = TapOf(x, scaling.sourceWidth, scaling.targetWidth);
    const Tap down = TapOf(y, scaling.sourceHeight, scaling.targetHeight);
    const int right = std::min(across.index + 1, scaling.sourceWidth - 1);
    const int below = std::min(down.index + 1, scaling.sourceHeight - 1);
    const Pixel* upperRow = scaling.source + down.index * scaling.sourceStride;
    const Pixel* lowerRow = scaling.source + below * scaling.sourceStride;
    return Lerp(Lerp(upperRow[across.index], upperRow[right], across.weight),
                Lerp(lowerRow[across.index], lowerRow[right], across.weight), down.weight);
}

Pixel Rotated(const korvane::kernels::Rotation& rotation, int x, int y) {
    const long double radians = static_cast<long double>(rotation.angle % 360) * kPi / 180.0L;
    const std::int64_t dx = std::int64_t{x} - rotation.targetX;
    const std::int64_t dy = std::int64_t{y} - rotation.targetY;
    const std::int64_t u = std::int64_t{rotation.pivotX} * 65536 +
                           Entry(std::cos(radians), rotation.scaleX) * dx +
                           Entry(std::sin(radians), rotation.scaleX) * dy;
    const std::int64_t v = std::int64_t{rotation.pivotY} * 65536 +
                           Entry(-std::sin(radians), rotation.scaleY) * dx +
                           Entry(std::cos(radians), rotation.scaleY) * dy;
    const auto at = [&](std::int64_t column, std::int64_t row) -> Pixel {
        const bool isInside =
            column >= 0 && column < rotation.sourceWidth && row >= 0 && row < rotation.sourceHeight;
        return isInside ? rotation.source[row * rotation.sourceStride + column] : 0;
    };
    if (rotation.filter == korvane::kernels::Filter::Nearest) {
        return at(FloorShift(u + 32768, 65536), FloorShift(v + 32768, 65536));
    }
    const std::int64_t column = FloorShift(u, 65536);
    const std::int64_t row = FloorShift(v, 65536);
    const auto weightX = static_cast<std::uint32_t>((u - column * 65536) / 256);
    const auto weightY = static_cast<std::uint32_t>((v - row * 65536) / 256);
    return Lerp(Lerp(at(column, row), at(column + 1, row), weightX),
                Lerp(at(column, row + 1), at(column + 1, row + 1), weightX), weightY);
}

}  // namespace reference
