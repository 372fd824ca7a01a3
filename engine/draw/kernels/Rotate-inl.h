// Rotation: each target row is cut to the pixels that the source touches, then filtered a vector at a time.
// Compiled once per target.
#if defined(KORVANE_KERNELS_ROTATE_INL) == defined(HWY_TARGET_TOGGLE)
#ifdef KORVANE_KERNELS_ROTATE_INL
#undef KORVANE_KERNELS_ROTATE_INL
#else
#define KORVANE_KERNELS_ROTATE_INL
#endif

#include <algorithm>

#include "engine/draw/kernels/Pixels-inl.h"
#include "engine/draw/kernels/Rotation.h"

HWY_BEFORE_NAMESPACE();
namespace korvane::kernels::HWY_NAMESPACE {

/// The pixel of the source, transparent outside.
HWY_INLINE Pixel PixelAt(const Rotation& rotation, std::int64_t x, std::int64_t y) {
    const bool isInside = x >= 0 && x < rotation.sourceWidth && y >= 0 && y < rotation.sourceHeight;
    return isInside ? rotation.source[y * rotation.sourceStride + x] : 0;
}

HWY_INLINE Pixel FilteredAt(const Rotation& rotation, std::int64_t u, std::int64_t v) {
    const std::int64_t x = u >> 16;
    const std::int64_t y = v >> 16;
    const auto weightX = static_cast<std::uint32_t>(u >> 8) & 255U;
    const auto weightY = static_cast<std::uint32_t>(v >> 8) & 255U;
    const Pixel upper = plain::Lerp(PixelAt(rotation, x, y), PixelAt(rotation, x + 1, y), weightX);
    const Pixel lower = plain::Lerp(PixelAt(rotation, x, y + 1), PixelAt(rotation, x + 1, y + 1), weightX);
    return plain::Lerp(upper, lower, weightY);
}

template <Filter kFilter>
HWY_INLINE void RotateRowPlain(Pixel* target, const Rotation& rotation, const InverseMap& map, RowSpan span) {
    for (int x = span.begin; x < span.end; ++x) {
        const Pixel pixel = kFilter == Filter::Bilinear
                                ? FilteredAt(rotation, span.u, span.v)
                                : PixelAt(rotation, (span.u + 32768) >> 16, (span.v + 32768) >> 16);
        if (pixel >= 0xFF000000U) {
            target[x] = pixel;
        } else if (pixel != 0) {
            target[x] = plain::Over(pixel, target[x]);
        }
        span.u += map.xx;
        span.v += map.yx;
    }
}

#if !KORVANE_PLAIN

/// Filters a vector of positions. The source is at least two pixels wide.
class Sampler {
  public:
    using D32 = hn::RebindToSigned<Lanes>;
    using Positions = hn::Vec<D32>;

    explicit Sampler(const Rotation& rotation)
        : source_(rotation.source),
          stride_(rotation.sourceStride),
          width_(rotation.sourceWidth),
          height_(rotation.sourceHeight) {}

    /// All positions and their right and lower neighbours lie in the source.
    HWY_INLINE Pixels<Lanes> Inside(Positions u, Positions v) const {
        const Lanes d;
        const D32 d32;
        const auto offsets = hn::Add(hn::Mul(hn::ShiftRight<16>(v), hn::Set(d32, static_cast<int>(stride_))),
                                     hn::ShiftRight<16>(u));
        alignas(64) std::int32_t places[kLanes];
        hn::Store(offsets, d32, places);
        return Mix(u, v, LoadNeighbours(d, source_, places), LoadNeighbours(d, source_ + stride_, places));
    }

    /// Any positions; what lies outside the source is transparent.
    HWY_INLINE Pixels<Lanes> Anywhere(Positions u, Positions v) const {
        const Lanes d;
        const D32 d32;
        const auto x = hn::ShiftRight<16>(u);
        const auto y = hn::ShiftRight<16>(v);
        const auto one = hn::Set(d32, 1);
        const auto right = hn::Add(x, one);
        const auto below = hn::Add(y, one);
        const auto nearY = Clamped(y, height_ - 1);
        const auto nearBelow = Clamped(below, height_ - 1);
        // The pair that is loaded lies inside; where the wanted one sticks out, its half is moved over.
        const auto pairX = Clamped(x, width_ - 2);
        const auto sticksOutLeft = hn::Lt(x, pairX);
        const auto sticksOutRight = hn::Gt(x, pairX);
        const auto stride = hn::Set(d32, static_cast<int>(stride_));
        alignas(64) std::int32_t upperPlaces[kLanes];
        alignas(64) std::int32_t lowerPlaces[kLanes];
        hn::Store(hn::Add(hn::Mul(nearY, stride), pairX), d32, upperPlaces);
        hn::Store(hn::Add(hn::Mul(nearBelow, stride), pairX), d32, lowerPlaces);
        const auto leftIn = hn::Eq(x, Clamped(x, width_ - 1));
        const auto rightIn = hn::Eq(right, Clamped(right, width_ - 1));
        const auto upperIn = hn::Eq(y, nearY);
        const auto lowerIn = hn::Eq(below, nearBelow);
        const auto upper = Cut(LoadNeighbours(d, source_, upperPlaces), sticksOutLeft, sticksOutRight,
                               hn::And(leftIn, upperIn), hn::And(rightIn, upperIn));
        const auto lower = Cut(LoadNeighbours(d, source_, lowerPlaces), sticksOutLeft, sticksOutRight,
                               hn::And(leftIn, lowerIn), hn::And(rightIn, lowerIn));
        return Mix(u, v, upper, lower);
    }

  private:
    HWY_INLINE static Positions Clamped(Positions positions, int last) {
        const D32 d32;
        return hn::Min(hn::Max(positions, hn::Zero(d32)), hn::Set(d32, last));
    }

    template <class M>
    HWY_INLINE static Neighbours<Lanes> Cut(const Neighbours<Lanes>& pair, M sticksOutLeft, M sticksOutRight,
                                            M leftIn, M rightIn) {
        const Lanes d;
        const auto left = hn::IfThenElse(hn::RebindMask(d, sticksOutRight), pair.right, pair.left);
        const auto right = hn::IfThenElse(hn::RebindMask(d, sticksOutLeft), pair.left, pair.right);
        return {hn::IfThenElseZero(hn::RebindMask(d, leftIn), left),
                hn::IfThenElseZero(hn::RebindMask(d, rightIn), right)};
    }

    HWY_INLINE static Pixels<Lanes> Mix(Positions u, Positions v, const Neighbours<Lanes>& upper,
                                        const Neighbours<Lanes>& lower) {
        const Lanes d;
        const auto weightX = SpreadByte<1>(d, hn::BitCast(d, u));
        const auto weightY = SpreadByte<1>(d, hn::BitCast(d, v));
        const auto above = LerpHalves(d, Split(d, upper.left), Split(d, upper.right), weightX);
        const auto below = LerpHalves(d, Split(d, lower.left), Split(d, lower.right), weightX);
        return LerpPixels(d, above, below, weightY);
    }

    const Pixel* source_;
    std::ptrdiff_t stride_;
    int width_;
    int height_;
};

/// Whether the steps first..last of a line that starts at `start` stay within [0, limit).
HWY_INLINE bool StaysInside(std::int64_t start, std::int64_t step, std::int64_t last, std::int64_t limit) {
    const std::int64_t end = start + step * last;
    return std::min(start, end) >= 0 && std::max(start, end) < limit;
}

HWY_INLINE void RotateRowFiltered(Pixel* target, const Rotation& rotation, const InverseMap& map,
                                  const RowSpan& span) {
    const Lanes d;
    const Sampler::D32 d32;
    const Sampler sampler(rotation);
    const int lanes = static_cast<int>(kLanes);
    const auto index = hn::Iota(d32, 0);
    const auto stepU = static_cast<std::int32_t>(map.xx);
    const auto stepV = static_cast<std::int32_t>(map.yx);
    const auto ramp = hn::Mul(index, hn::Set(d32, stepU));
    const auto rampV = hn::Mul(index, hn::Set(d32, stepV));
    const std::int64_t limitU = std::int64_t{rotation.sourceWidth - 1} << 16;
    const std::int64_t limitV = std::int64_t{rotation.sourceHeight - 1} << 16;
    std::int64_t u = span.u;
    std::int64_t v = span.v;
    for (int x = span.begin; x < span.end; x += lanes) {
        const auto atU = hn::Add(hn::Set(d32, static_cast<std::int32_t>(u)), ramp);
        const auto atV = hn::Add(hn::Set(d32, static_cast<std::int32_t>(v)), rampV);
        const bool isInside =
            StaysInside(u, map.xx, lanes - 1, limitU) && StaysInside(v, map.yx, lanes - 1, limitV);
        const auto pixels = isInside ? sampler.Inside(atU, atV) : sampler.Anywhere(atU, atV);
        const int count = span.end - x;
        if (count >= lanes) {
            const auto under = hn::LoadU(d, target + x);
            hn::StoreU(Over(d, pixels, under), d, target + x);
        } else {
            alignas(64) Pixel rest[kLanes];
            hn::Store(pixels, d, rest);
            BlendSpan(target + x, rest, static_cast<std::size_t>(count));
        }
        u += map.xx * lanes;
        v += map.yx * lanes;
    }
}

#endif  // !KORVANE_PLAIN

void RotateOver(Pixel* target, std::ptrdiff_t targetStride, const Box& clip, const Rotation& rotation,
                const InverseMap& map) {
    for (int y = clip.y; y < clip.y + clip.height; ++y) {
        const RowSpan span = SpanOf(rotation, map, y, clip.x, clip.x + clip.width);
        if (span.begin >= span.end) {
            continue;
        }
        Pixel* row = target + y * targetStride;
        if (rotation.filter == Filter::Nearest) {
            RotateRowPlain<Filter::Nearest>(row, rotation, map, span);
            continue;
        }
#if !KORVANE_PLAIN
        if (rotation.sourceWidth > 1) {
            RotateRowFiltered(row, rotation, map, span);
            continue;
        }
#endif
        RotateRowPlain<Filter::Bilinear>(row, rotation, map, span);
    }
}

}  // namespace korvane::kernels::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // include guard
