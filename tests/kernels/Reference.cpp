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

std::int64_t FloorDivide(std::int64_t value, std::int64_t divisor) {
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

Turned::Turned(const korvane::kernels::Rotation& rotation) : rotation_(rotation) {
    const long double radians = static_cast<long double>(rotation.angle % 360) * kPi / 180.0L;
    cosineX_ = Entry(std::cos(radians), rotation.scaleX);
    sineX_ = Entry(std::sin(radians), rotation.scaleX);
    sineY_ = Entry(std::sin(radians), rotation.scaleY);
    cosineY_ = Entry(std::cos(radians), rotation.scaleY);
}

Pixel Turned::SourceAt(std::int64_t column, std::int64_t row) const {
    const bool isInside =
        column >= 0 && column < rotation_.sourceWidth && row >= 0 && row < rotation_.sourceHeight;
    return isInside ? rotation_.source[row * rotation_.sourceStride + column] : 0;
}

Pixel Turned::At(int x, int y) const {
    const std::int64_t dx = std::int64_t{x} - rotation_.targetX;
    const std::int64_t dy = std::int64_t{y} - rotation_.targetY;
    const std::int64_t u = std::int64_t{rotation_.pivotX} * 65536 + cosineX_ * dx + sineX_ * dy;
    const std::int64_t v = std::int64_t{rotation_.pivotY} * 65536 - sineY_ * dx + cosineY_ * dy;
    if (rotation_.filter == korvane::kernels::Filter::Nearest) {
        return SourceAt(FloorDivide(u + 32768, 65536), FloorDivide(v + 32768, 65536));
    }
    const std::int64_t column = FloorDivide(u, 65536);
    const std::int64_t row = FloorDivide(v, 65536);
    const auto weightX = static_cast<std::uint32_t>((u - column * 65536) / 256);
    const auto weightY = static_cast<std::uint32_t>((v - row * 65536) / 256);
    return Lerp(Lerp(SourceAt(column, row), SourceAt(column + 1, row), weightX),
                Lerp(SourceAt(column, row + 1), SourceAt(column + 1, row + 1), weightX), weightY);
}

}  // namespace reference
