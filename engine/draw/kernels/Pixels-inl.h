// Vector arithmetic on pixels and the way along a row of any length. Compiled once per target.
#if defined(KORVANE_KERNELS_PIXELS_INL) == defined(HWY_TARGET_TOGGLE)
#ifdef KORVANE_KERNELS_PIXELS_INL
#undef KORVANE_KERNELS_PIXELS_INL
#else
#define KORVANE_KERNELS_PIXELS_INL
#endif

#include <cstddef>
#include <cstdint>
#include <hwy/highway.h>

#include "engine/draw/kernels/Kernels.h"
#include "engine/draw/kernels/PlainPixel.h"

// Targets without real vectors take the plain loops: emulated ones would only be slower.
#undef KORVANE_PLAIN
#if HWY_TARGET == HWY_SCALAR || HWY_TARGET == HWY_EMU128
#define KORVANE_PLAIN 1
#else
#define KORVANE_PLAIN 0
#endif

HWY_BEFORE_NAMESPACE();
namespace korvane::kernels::HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

#if !KORVANE_PLAIN

using Lanes = hn::ScalableTag<Pixel>;
template <class D>
using Pixels = hn::Vec<D>;

constexpr std::size_t kLanes = hn::MaxLanes(Lanes());

/// Where a step finds the target's pixels: in memory,
struct InPlace {
    const Pixel* target;
    template <class D>
    HWY_INLINE Pixels<D> Load(D d, std::size_t index) const {
        return hn::LoadU(d, target + index);
    }
};

/// or as they were before an earlier step stored over some of them.
template <class D>
struct Kept {
    Pixels<D> pixels;
    HWY_INLINE Pixels<D> Load(D /*d*/, std::size_t /*index*/) const { return pixels; }
};

/// Calls step(tag, index, under) for all pixels of a row, a vector at a time. The last vector of a row ends
/// where the row ends and may overlap the one before: it takes the target's old pixels too, so both come to
/// the same result. A row shorter than a vector goes the same way with shorter ones.
template <class Step, class D = Lanes>
HWY_INLINE void ForRow(const Step& step, std::size_t count, D d = D()) {
    constexpr std::size_t lanes = hn::MaxLanes(D());
    const InPlace inPlace{step.target};
    if (count >= lanes) {
        const std::size_t last = count - lanes;
        const Kept<D> kept{inPlace.Load(d, last)};
        std::size_t index = 0;
        for (; index <= last; index += lanes) {
            step(d, index, inPlace);
        }
        if (index < count) {
            step(d, last, kept);
        }
    } else if constexpr (lanes > 1) {
        ForRow(step, count, hn::CappedTag<Pixel, lanes / 2>());
    }
}

/// 16-bit lanes hold x in 0..65407; gives Div255(x).
template <class D16>
HWY_INLINE hn::Vec<D16> Div255Lanes(D16 d16, hn::Vec<D16> x) {
    // (t + (t >> 8)) >> 8 is (t * 257) >> 16.
    return hn::MulHigh(hn::Add(x, hn::Set(d16, 128)), hn::Set(d16, 257));
}

/// The byte at `kByte` of every pixel in both 16-bit halves of its lane.
template <int kByte, class D>
HWY_INLINE Pixels<D> SpreadByte(D d, Pixels<D> pixels) {
    const hn::Repartition<std::uint8_t, D> d8;
    constexpr std::uint8_t kNone = 0x80;
    alignas(16) static constexpr std::uint8_t kPlaces[16] = {
        kByte,     kNone, kByte,     kNone, kByte + 4,  kNone, kByte + 4,  kNone,
        kByte + 8, kNone, kByte + 8, kNone, kByte + 12, kNone, kByte + 12, kNone};
    return hn::BitCast(d, hn::TableLookupBytesOr0(hn::BitCast(d8, pixels), hn::LoadDup128(d8, kPlaces)));
}

template <class D>
HWY_INLINE Pixels<D> LowPairs(D d, Pixels<D> pixels) {
    return hn::And(pixels, hn::Set(d, plain::kPairs));
}

template <class D>
HWY_INLINE Pixels<D> HighPairs(D d, Pixels<D> pixels) {
    const hn::Repartition<std::uint16_t, D> d16;
    return hn::BitCast(d, hn::ShiftRight<8>(hn::BitCast(d16, pixels)));
}

/// target * factor / 255; `factor` holds 0..255 in both halves of each lane.
template <class D>
HWY_INLINE Pixels<D> Scale(D d, Pixels<D> target, Pixels<D> factor) {
    const hn::Repartition<std::uint16_t, D> d16;
    const auto by = hn::BitCast(d16, factor);
    const auto low = Div255Lanes(d16, hn::Mul(hn::BitCast(d16, LowPairs(d, target)), by));
    const auto high = Div255Lanes(d16, hn::Mul(hn::BitCast(d16, HighPairs(d, target)), by));
    return hn::BitCast(d, hn::Or(low, hn::ShiftLeft<8>(high)));
}

template <class D>
HWY_INLINE Pixels<D> AddPixels(D d, Pixels<D> a, Pixels<D> b) {
    const hn::Repartition<std::uint8_t, D> d8;
    return hn::BitCast(d, hn::SaturatedAdd(hn::BitCast(d8, a), hn::BitCast(d8, b)));
}

template <class D>
HWY_INLINE Pixels<D> Over(D d, Pixels<D> source, Pixels<D> target) {
    const auto inverse = hn::Xor(SpreadByte<3>(d, source), hn::Set(d, plain::kPairs));
    return AddPixels(d, source, Scale(d, target, inverse));
}

/// Lerp before it is put together: the low and the high channels of each pixel as 16-bit lanes.
template <class D>
struct Halves {
    hn::Vec<hn::Repartition<std::uint16_t, D>> low;
    hn::Vec<hn::Repartition<std::uint16_t, D>> high;
};

template <class D>
HWY_INLINE Halves<D> Split(D d, Pixels<D> pixels) {
    const hn::Repartition<std::uint16_t, D> d16;
    return {hn::BitCast(d16, LowPairs(d, pixels)), hn::BitCast(d16, HighPairs(d, pixels))};
}

/// a * 256 + (b - a) * weight + 128, which wraps on the way and fits in the end.
template <class D16>
HWY_INLINE hn::Vec<D16> LerpLanes(D16 d16, hn::Vec<D16> a, hn::Vec<D16> b, hn::Vec<D16> weight) {
    const auto base = hn::Add(hn::ShiftLeft<8>(a), hn::Set(d16, 128));
    return hn::Add(base, hn::Mul(hn::Sub(b, a), weight));
}

template <class D>
HWY_INLINE Halves<D> LerpHalves(D /*d*/, const Halves<D>& a, const Halves<D>& b, Pixels<D> weight) {
    const hn::Repartition<std::uint16_t, D> d16;
    const auto by = hn::BitCast(d16, weight);
    return {hn::ShiftRight<8>(LerpLanes(d16, a.low, b.low, by)),
            hn::ShiftRight<8>(LerpLanes(d16, a.high, b.high, by))};
}

/// As LerpHalves, put together into pixels.
template <class D>
HWY_INLINE Pixels<D> LerpPixels(D d, const Halves<D>& a, const Halves<D>& b, Pixels<D> weight) {
    const hn::Repartition<std::uint16_t, D> d16;
    const auto by = hn::BitCast(d16, weight);
    const auto low = hn::ShiftRight<8>(LerpLanes(d16, a.low, b.low, by));
    const auto high = LerpLanes(d16, a.high, b.high, by);
    return hn::OrAnd(hn::BitCast(d, low), hn::BitCast(d, high), hn::Set(d, ~plain::kPairs));
}

/// Two neighbouring pixels each for as many places as D has lanes.
template <class D>
struct Neighbours {
    Pixels<D> left;
    Pixels<D> right;
};

/// left[i] = base[offsets[i]], right[i] = base[offsets[i] + 1].
template <class D>
HWY_INLINE Neighbours<D> LoadNeighbours(D d, const Pixel* base, const std::int32_t* offsets) {
    if constexpr (hn::MaxLanes(D()) > 4) {
        const hn::Half<D> half;
        const auto low = LoadNeighbours(half, base, offsets);
        const auto high = LoadNeighbours(half, base, offsets + hn::MaxLanes(half));
        return {hn::Combine(d, high.left, low.left), hn::Combine(d, high.right, low.right)};
    } else {
        const hn::CappedTag<Pixel, 2> pair;
        const hn::Repartition<std::uint64_t, D> d64;
        const auto even =
            hn::Combine(d, hn::LoadU(pair, base + offsets[2]), hn::LoadU(pair, base + offsets[0]));
        const auto odd =
            hn::Combine(d, hn::LoadU(pair, base + offsets[3]), hn::LoadU(pair, base + offsets[1]));
        const auto first = hn::BitCast(d64, hn::InterleaveLower(d, even, odd));
        const auto second = hn::BitCast(d64, hn::InterleaveUpper(d, even, odd));
        return {hn::BitCast(d, hn::InterleaveLower(d64, first, second)),
                hn::BitCast(d, hn::InterleaveUpper(d64, first, second))};
    }
}

struct CopyStep {
    Pixel* target;
    const Pixel* source;
    template <class D, class Under>
    HWY_INLINE void operator()(D d, std::size_t i, const Under& /*under*/) const {
        hn::StoreU(hn::LoadU(d, source + i), d, target + i);
    }
};

/// Over without a look at what the pixels are.
struct BlendStep {
    Pixel* target;
    const Pixel* source;
    template <class D, class Under>
    HWY_INLINE void operator()(D d, std::size_t i, const Under& under) const {
        hn::StoreU(Over(d, hn::LoadU(d, source + i), under.Load(d, i)), d, target + i);
    }
};

/// Over that stores opaque vectors and leaves the target alone under transparent ones, in the order of how
/// often the pictures of a user interface have them.
struct OverStep {
    Pixel* target;
    const Pixel* source;
    template <class D, class Under>
    HWY_INLINE void operator()(D d, std::size_t i, const Under& under) const {
        const auto pixels = hn::LoadU(d, source + i);
        const auto alpha = hn::Set(d, 0xFF000000U);
        if (hn::AllTrue(d, hn::Eq(hn::And(pixels, alpha), alpha))) {
            hn::StoreU(pixels, d, target + i);
            return;
        }
        if (hn::AllTrue(d, hn::Eq(pixels, hn::Zero(d)))) {
            return;
        }
        hn::StoreU(Over(d, pixels, under.Load(d, i)), d, target + i);
    }
};

HWY_INLINE void CopySpan(Pixel* target, const Pixel* source, std::size_t count) {
    ForRow(CopyStep{target, source}, count);
}

HWY_INLINE void BlendSpan(Pixel* target, const Pixel* source, std::size_t count) {
    ForRow(BlendStep{target, source}, count);
}

HWY_INLINE void OverSpan(Pixel* target, const Pixel* source, std::size_t count) {
    ForRow(OverStep{target, source}, count);
}

#else  // KORVANE_PLAIN

HWY_INLINE void CopySpan(Pixel* target, const Pixel* source, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        target[i] = source[i];
    }
}

HWY_INLINE void BlendSpan(Pixel* target, const Pixel* source, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        target[i] = plain::Over(source[i], target[i]);
    }
}

HWY_INLINE void OverSpan(Pixel* target, const Pixel* source, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        if (source[i] >= 0xFF000000U) {
            target[i] = source[i];
        } else if (source[i] != 0) {
            target[i] = plain::Over(source[i], target[i]);
        }
    }
}

#endif  // KORVANE_PLAIN

}  // namespace korvane::kernels::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // include guard
