// Blocks of pixels: over, fill, mask, and over along an image's runs. Compiled once per target.
#if defined(KORVANE_KERNELS_BLOCKS_INL) == defined(HWY_TARGET_TOGGLE)
#ifdef KORVANE_KERNELS_BLOCKS_INL
#undef KORVANE_KERNELS_BLOCKS_INL
#else
#define KORVANE_KERNELS_BLOCKS_INL
#endif

#include <algorithm>

#include "engine/draw/kernels/Pixels-inl.h"

HWY_BEFORE_NAMESPACE();
namespace korvane::kernels::HWY_NAMESPACE {

void OverBlock(Pixel* target, std::ptrdiff_t targetStride, const Pixel* source, std::ptrdiff_t sourceStride,
               int width, int height) {
    for (int y = 0; y < height; ++y) {
        OverSpan(target, source, static_cast<std::size_t>(width));
        target += targetStride;
        source += sourceStride;
    }
}

HWY_INLINE void ApplyRun(RunKind kind, Pixel* target, const Pixel* source, std::size_t count) {
    switch (kind) {
        case RunKind::Empty:
            break;
        case RunKind::Solid:
            CopySpan(target, source, count);
            break;
        case RunKind::Soft:
            BlendSpan(target, source, count);
            break;
    }
}

/// `runs` is an image of mixed coverage.
void OverRuns(Pixel* target, std::ptrdiff_t targetStride, const Pixel* image, std::ptrdiff_t imageStride,
              const RunTable& runs, int sourceX, int sourceY, int width, int height) {
    for (int y = 0; y < height; ++y) {
        const Run* run = runs.runs.data() + runs.rows[static_cast<std::size_t>(sourceY + y)];
        int end = run->length;
        while (end <= sourceX) {
            ++run;
            end += run->length;
        }
        const Pixel* source = image + (sourceY + y) * imageStride + sourceX;
        int x = 0;
        while (true) {
            const int stop = std::min(end - sourceX, width);
            ApplyRun(run->kind, target + x, source + x, static_cast<std::size_t>(stop - x));
            x = stop;
            if (x >= width) {
                break;
            }
            ++run;
            end += run->length;
        }
        target += targetStride;
    }
}

#if !KORVANE_PLAIN

struct FillStep {
    Pixel* target;
    Pixel color;
    template <class D, class Access>
    HWY_INLINE void operator()(D d, const Access& access, std::size_t i) const {
        access.Store(hn::Set(d, color), d, target + i);
    }
};

struct FillOverStep {
    Pixel* target;
    Pixel color;
    Pixel inverse;  ///< 255 - alpha in both halves.
    template <class D, class Access>
    HWY_INLINE void operator()(D d, const Access& access, std::size_t i) const {
        const auto scaled = Scale(d, access.Load(d, target + i), hn::Set(d, inverse));
        access.Store(AddPixels(d, hn::Set(d, color), scaled), d, target + i);
    }
};

/// An opaque colour through a mask. The mask is the alpha.
struct OpaqueMaskStep {
    Pixel* target;
    const std::uint8_t* mask;
    Pixel color;
    template <class D, class Access>
    HWY_INLINE void operator()(D d, const Access& access, std::size_t i) const {
        const hn::Repartition<std::uint16_t, D> d16;
        const auto cover = access.LoadMask(d, mask + i);
        if (hn::AllTrue(d, hn::Eq(cover, hn::Zero(d)))) {
            return;
        }
        const auto spread = hn::Or(cover, hn::ShiftLeft<16>(cover));
        Blend(d, access, i, hn::BitCast(d16, spread),
              hn::BitCast(d16, hn::Xor(spread, hn::Set(d, plain::kPairs))));
    }
    template <class D, class Access, class V16>
    HWY_INLINE void Blend(D d, const Access& access, std::size_t i, V16 cover, V16 inverse) const {
        const hn::Repartition<std::uint16_t, D> d16;
        const auto paint = Split(d, hn::Set(d, color));
        const auto under = Split(d, access.Load(d, target + i));
        const auto low = Div255Lanes(d16, hn::Add(hn::Mul(paint.low, cover), hn::Mul(under.low, inverse)));
        const auto high = Div255Lanes(d16, hn::Add(hn::Mul(paint.high, cover), hn::Mul(under.high, inverse)));
        access.Store(hn::BitCast(d, hn::Or(low, hn::ShiftLeft<8>(high))), d, target + i);
    }
};

struct MaskStep {
    OpaqueMaskStep inner;
    template <class D, class Access>
    HWY_INLINE void operator()(D d, const Access& access, std::size_t i) const {
        const hn::Repartition<std::uint16_t, D> d16;
        const auto cover = access.LoadMask(d, inner.mask + i);
        if (hn::AllTrue(d, hn::Eq(cover, hn::Zero(d)))) {
            return;
        }
        const auto spread = hn::BitCast(d16, hn::Or(cover, hn::ShiftLeft<16>(cover)));
        const auto alpha =
            Div255Lanes(d16, hn::Mul(spread, hn::Set(d16, static_cast<std::uint16_t>(inner.color >> 24))));
        inner.Blend(d, access, i, spread, hn::Xor(alpha, hn::Set(d16, 255)));
    }
};

HWY_INLINE void FillSpan(Pixel* target, Pixel color, std::size_t count) {
    ForRow(FillStep{target, color}, count);
}

HWY_INLINE void FillOverSpan(Pixel* target, Pixel color, std::size_t count) {
    ForRow(FillOverStep{target, color, (255U - (color >> 24)) * 0x00010001U}, count);
}

HWY_INLINE void MaskOverSpan(Pixel* target, const std::uint8_t* mask, Pixel color, std::size_t count) {
    if (color >= 0xFF000000U) {
        ForRow(OpaqueMaskStep{target, mask, color}, count);
    } else {
        ForRow(MaskStep{{target, mask, color}}, count);
    }
}

#else  // KORVANE_PLAIN

HWY_INLINE void FillSpan(Pixel* target, Pixel color, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        target[i] = color;
    }
}

HWY_INLINE void FillOverSpan(Pixel* target, Pixel color, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        target[i] = plain::Over(color, target[i]);
    }
}

HWY_INLINE void MaskOverSpan(Pixel* target, const std::uint8_t* mask, Pixel color, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        if (mask[i] != 0) {
            target[i] = plain::MaskOver(color, mask[i], target[i]);
        }
    }
}

#endif  // KORVANE_PLAIN

void FillBlock(Pixel* target, std::ptrdiff_t targetStride, Pixel color, int width, int height) {
    for (int y = 0; y < height; ++y) {
        FillSpan(target, color, static_cast<std::size_t>(width));
        target += targetStride;
    }
}

void FillOverBlock(Pixel* target, std::ptrdiff_t targetStride, Pixel color, int width, int height) {
    for (int y = 0; y < height; ++y) {
        FillOverSpan(target, color, static_cast<std::size_t>(width));
        target += targetStride;
    }
}

void MaskOverBlock(Pixel* target, std::ptrdiff_t targetStride, const std::uint8_t* mask,
                   std::ptrdiff_t maskStride, Pixel color, int width, int height) {
    for (int y = 0; y < height; ++y) {
        MaskOverSpan(target, mask, color, static_cast<std::size_t>(width));
        target += targetStride;
        mask += maskStride;
    }
}

}  // namespace korvane::kernels::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // include guard
