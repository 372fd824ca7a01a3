// Bilinear scaling: a row is filtered along x once, kept, and mixed with its neighbour along y. Compiled once
// per target.
#if defined(KORVANE_KERNELS_STRETCH_INL) == defined(HWY_TARGET_TOGGLE)
#ifdef KORVANE_KERNELS_STRETCH_INL
#undef KORVANE_KERNELS_STRETCH_INL
#else
#define KORVANE_KERNELS_STRETCH_INL
#endif

#include <algorithm>

#include "engine/draw/kernels/Pixels-inl.h"

HWY_BEFORE_NAMESPACE();
namespace korvane::kernels::HWY_NAMESPACE {

/// Steps along one direction of a scaled block: source positions of target pixels first, first + 1, ...
/// Carries the division's remainder, so that each position is the exact quotient rounded down.
class ScaleSteps {
  public:
    ScaleSteps(int sourceSize, int targetSize, int first)
        : last_(sourceSize - 1),
          divisor_(targetSize),
          step_((std::int64_t{sourceSize} << 16) / targetSize),
          stepRest_((std::int64_t{sourceSize} << 16) % targetSize) {
        const std::int64_t numerator = ((2 * std::int64_t{first} + 1) * sourceSize) << 15;
        position_ = numerator / targetSize - 32768;
        rest_ = numerator % targetSize;
    }

    /// The left one of the two pixels to mix, at most the last but one (0 when there is only one), and the
    /// weight 0..256 of the right one.
    void Next(std::int32_t& index, std::uint32_t& weight) {
        const std::int64_t clamped = std::clamp<std::int64_t>(position_, 0, last_ << 16);
        index = static_cast<std::int32_t>(clamped >> 16);
        weight = static_cast<std::uint32_t>(clamped >> 8) & 255U;
        if (index == last_ && last_ > 0) {
            --index;
            weight = 256;
        }
        position_ += step_;
        rest_ += stepRest_;
        const bool carries = rest_ >= divisor_;
        position_ += carries ? 1 : 0;
        rest_ -= carries ? divisor_ : 0;
    }

  private:
    std::int64_t last_;
    std::int64_t divisor_;
    std::int64_t step_;
    std::int64_t stepRest_;
    std::int64_t position_ = 0;
    std::int64_t rest_ = 0;
};

/// Columns that are scaled at a time; what bounds the stack.
constexpr int kStripWidth = 1024;

/// Where the columns of a strip lie in the source. The arrays are filled up to whole vectors.
struct StripColumns {
    int count = 0;
    bool halves = false;  ///< Column i mixes 2i and 2i + 1 of the first offset in equal parts.
    alignas(64) std::int32_t offsets[kStripWidth];
    alignas(64) std::uint32_t weights[kStripWidth];  ///< In both 16-bit halves.
};

void FindColumns(const Scaling& scaling, int first, int count, StripColumns& columns) {
    columns.count = count;
    columns.halves = scaling.sourceWidth == 2 * scaling.targetWidth;
    ScaleSteps steps(scaling.sourceWidth, scaling.targetWidth, first);
    for (int x = 0; x < count; ++x) {
        std::uint32_t weight = 0;
        steps.Next(columns.offsets[x], weight);
        columns.weights[x] = weight * 0x00010001U;
    }
#if !KORVANE_PLAIN
    for (int x = count; x % static_cast<int>(kLanes) != 0; ++x) {
        columns.offsets[x] = columns.offsets[count - 1];
        columns.weights[x] = columns.weights[count - 1];
    }
#endif
}

#if !KORVANE_PLAIN

/// The mean of neighbouring pixels, which is Lerp with the weight 128.
HWY_INLINE void HalveRow(const Pixel* source, int count, Pixel* row) {
    const Lanes d;
    const hn::Repartition<std::uint8_t, Lanes> d8;
    const int lanes = static_cast<int>(kLanes);
    int x = 0;
    for (; x + lanes <= count; x += lanes) {
        const auto low = hn::LoadU(d, source + 2 * x);
        const auto high = hn::LoadU(d, source + 2 * x + lanes);
        const auto left = hn::BitCast(d8, hn::ConcatEven(d, high, low));
        const auto right = hn::BitCast(d8, hn::ConcatOdd(d, high, low));
        hn::Store(hn::BitCast(d, hn::AverageRound(left, right)), d, row + x);
    }
    for (; x < count; ++x) {
        row[x] = plain::Lerp(source[2 * x], source[2 * x + 1], 128);
    }
}

void FilterRow(const Pixel* source, bool hasOneColumn, const StripColumns& columns, Pixel* row) {
    const Lanes d;
    const int lanes = static_cast<int>(kLanes);
    if (hasOneColumn) {
        for (int x = 0; x < columns.count; x += lanes) {
            hn::Store(hn::Set(d, source[0]), d, row + x);
        }
        return;
    }
    if (columns.halves) {
        HalveRow(source + columns.offsets[0], columns.count, row);
        return;
    }
    for (int x = 0; x < columns.count; x += lanes) {
        const auto taps = LoadNeighbours(d, source, columns.offsets + x);
        const auto weights = hn::Load(d, columns.weights + x);
        hn::Store(LerpPixels(d, Split(d, taps.left), Split(d, taps.right), weights), d, row + x);
    }
}

struct MixStep {
    Pixel* target;
    const Pixel* upper;
    const Pixel* lower;
    std::uint32_t weight;
    template <class D, class Under>
    HWY_INLINE void operator()(D d, std::size_t i, const Under& /*under*/) const {
        const auto a = Split(d, hn::LoadU(d, upper + i));
        const auto b = Split(d, hn::LoadU(d, lower + i));
        hn::StoreU(LerpPixels(d, a, b, hn::Set(d, weight * 0x00010001U)), d, target + i);
    }
};

struct MeanStep {
    Pixel* target;
    const Pixel* upper;
    const Pixel* lower;
    template <class D, class Under>
    HWY_INLINE void operator()(D d, std::size_t i, const Under& /*under*/) const {
        const hn::Repartition<std::uint8_t, D> d8;
        const auto mean = hn::AverageRound(hn::BitCast(d8, hn::LoadU(d, upper + i)),
                                           hn::BitCast(d8, hn::LoadU(d, lower + i)));
        hn::StoreU(hn::BitCast(d, mean), d, target + i);
    }
};

void MixRows(const Pixel* upper, const Pixel* lower, std::uint32_t weight, int count, Pixel* target) {
    if (weight == 128) {
        ForRow(MeanStep{target, upper, lower}, static_cast<std::size_t>(count));
    } else {
        ForRow(MixStep{target, upper, lower, weight}, static_cast<std::size_t>(count));
    }
}

#else  // KORVANE_PLAIN

void FilterRow(const Pixel* source, bool hasOneColumn, const StripColumns& columns, Pixel* row) {
    for (int x = 0; x < columns.count; ++x) {
        const Pixel* taps = source + columns.offsets[x];
        row[x] = hasOneColumn ? taps[0] : plain::Lerp(taps[0], taps[1], columns.weights[x] & 0xFFFFU);
    }
}

void MixRows(const Pixel* upper, const Pixel* lower, std::uint32_t weight, int count, Pixel* target) {
    for (int x = 0; x < count; ++x) {
        target[x] = plain::Lerp(upper[x], lower[x], weight);
    }
}

#endif  // KORVANE_PLAIN

/// The two source rows that were filtered last.
struct FilteredRows {
    int index[2] = {-1, -1};
    alignas(64) Pixel pixels[2][kStripWidth];

    /// The filtered row; `keep` is the row whose place must not be taken.
    const Pixel* Get(const Scaling& scaling, const StripColumns& columns, int row, int keep) {
        if (index[0] == row) {
            return pixels[0];
        }
        if (index[1] == row) {
            return pixels[1];
        }
        const int place = index[0] == keep ? 1 : 0;
        FilterRow(scaling.source + row * scaling.sourceStride, scaling.sourceWidth == 1, columns,
                  pixels[place]);
        index[place] = row;
        return pixels[place];
    }
};

enum class Storing { Copy, Over };

template <Storing kStoring>
void StretchStrip(Pixel* target, std::ptrdiff_t targetStride, const Scaling& scaling, const Box& part) {
    StripColumns columns;
    FindColumns(scaling, part.x, part.width, columns);
    FilteredRows rows;
    alignas(64) Pixel mixed[kStoring == Storing::Over ? kStripWidth : 1];
    ScaleSteps steps(scaling.sourceHeight, scaling.targetHeight, part.y);
    for (int y = 0; y < part.height; ++y) {
        std::int32_t row = 0;
        std::uint32_t weight = 0;
        steps.Next(row, weight);
        const bool mixes = weight % 256 != 0;
        const int first = weight == 256 ? row + 1 : row;
        const Pixel* upper = rows.Get(scaling, columns, first, mixes ? first + 1 : -1);
        const Pixel* lower = mixes ? rows.Get(scaling, columns, first + 1, first) : upper;
        if (kStoring == Storing::Over) {
            if (mixes) {
                MixRows(upper, lower, weight, part.width, mixed);
            }
            OverSpan(target, mixes ? mixed : upper, static_cast<std::size_t>(part.width));
        } else if (mixes) {
            MixRows(upper, lower, weight, part.width, target);
        } else {
            CopySpan(target, upper, static_cast<std::size_t>(part.width));
        }
        target += targetStride;
    }
}

template <Storing kStoring>
HWY_INLINE void Stretch(Pixel* target, std::ptrdiff_t targetStride, const Scaling& scaling, const Box& part) {
    for (int x = 0; x < part.width; x += kStripWidth) {
        const Box strip{part.x + x, part.y, std::min(kStripWidth, part.width - x), part.height};
        StretchStrip<kStoring>(target + x, targetStride, scaling, strip);
    }
}

void StretchCopy(Pixel* target, std::ptrdiff_t targetStride, const Scaling& scaling, const Box& part) {
    Stretch<Storing::Copy>(target, targetStride, scaling, part);
}

void StretchOver(Pixel* target, std::ptrdiff_t targetStride, const Scaling& scaling, const Box& part) {
    Stretch<Storing::Over>(target, targetStride, scaling, part);
}

}  // namespace korvane::kernels::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // include guard
