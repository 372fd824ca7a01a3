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
    template <class D, class Under>
    HWY_INLINE void operator()(D d, std::size_t i, const Under& /*under*/) const {
        hn::StoreU(hn::Set(d, color), d, target + i);
    }
};

struct FillOverStep {
    Pixel* target;
    Pixel color;
    Pixel inverse;  ///< 255 - alpha in both halves.
    template <class D, class Under>
    HWY_INLINE void operator()(D d, std::size_t i, const Under& under) const {
        const auto scaled = Scale(d, under.Load(d, i), hn::Set(d, inverse));
        hn::StoreU(AddPixels(d, hn::Set(d, color), scaled), d, target + i);
    }
};

/// A colour through a mask. Through an opaque colour the mask itself is the alpha.
template <bool kOpaque>
struct MaskStep {
    Pixel* target;
    const std::uint8_t* mask;
    Pixel color;
    template <class D, class Under>
    HWY_INLINE void operator()(D d, std::size_t i, const Under& under) const {
        const hn::Repartition<std::uint16_t, D> d16;
        const auto covers = hn::PromoteTo(d, hn::LoadU(hn::Rebind<std::uint8_t, D>(), mask + i));
        const auto cover = hn::BitCast(d16, hn::Or(covers, hn::ShiftLeft<16>(covers)));
        auto alpha = cover;
        if (!kOpaque) {
            const auto full = hn::Set(d16, static_cast<std::uint16_t>(color >> 24));
            alpha = Div255Lanes(d16, hn::Mul(cover, full));
        }
        const auto inverse = hn::Xor(alpha, hn::Set(d16, 255));
        const auto paint = Split(d, hn::Set(d, color));
        const auto below = Split(d, under.Load(d, i));
        const auto low = Div255Lanes(d16, hn::Add(hn::Mul(paint.low, cover), hn::Mul(below.low, inverse)));
        const auto high = Div255Lanes(d16, hn::Add(hn::Mul(paint.high, cover), hn::Mul(below.high, inverse)));
        hn::StoreU(hn::BitCast(d, hn::Or(low, hn::ShiftLeft<8>(high))), d, target + i);
    }
};

HWY_INLINE void FillSpan(Pixel* target, Pixel color, std::size_t count) {
    ForRow(FillStep{target, color}, count);
}

HWY_INLINE void FillOverSpan(Pixel* target, Pixel color, std::size_t count) {
    ForRow(FillOverStep{target, color, (255U - (color >> 24)) * 0x00010001U}, count);
}

template <bool kOpaque>
HWY_INLINE void MaskOverSpan(Pixel* target, const std::uint8_t* mask, Pixel color, std::size_t count) {
    ForRow(MaskStep<kOpaque>{target, mask, color}, count);
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

template <bool kOpaque>
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

template <bool kOpaque>
HWY_INLINE void MaskOverRows(Pixel* target, std::ptrdiff_t targetStride, const std::uint8_t* mask,
                             std::ptrdiff_t maskStride, Pixel color, int width, int height) {
    for (int y = 0; y < height; ++y) {
        MaskOverSpan<kOpaque>(target, mask, color, static_cast<std::size_t>(width));
        target += targetStride;
        mask += maskStride;
    }
}

void MaskOverBlock(Pixel* target, std::ptrdiff_t targetStride, const std::uint8_t* mask,
                   std::ptrdiff_t maskStride, Pixel color, int width, int height) {
    if (color >= 0xFF000000U) {
        MaskOverRows<true>(target, targetStride, mask, maskStride, color, width, height);
    } else {
        MaskOverRows<false>(target, targetStride, mask, maskStride, color, width, height);
    }
}

}  // namespace korvane::kernels::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // include guard
