#include "engine/draw/kernels/Kernels.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "engine/draw/kernels/Kernels.cpp"
// foreach_target.h compiles this file once per target and so comes before the others.
// clang-format off
#include <hwy/foreach_target.h>
#include <hwy/highway.h>
// clang-format on

#include "engine/draw/kernels/Blocks-inl.h"
#include "engine/draw/kernels/KernelTable.h"
#include "engine/draw/kernels/Rotate-inl.h"
#include "engine/draw/kernels/Stretch-inl.h"

HWY_BEFORE_NAMESPACE();
namespace korvane::kernels::HWY_NAMESPACE {

const KernelTable* Table() {
    static constexpr KernelTable kTable = {&OverBlock,     &OverRuns,    &FillBlock,   &FillOverBlock,
                                           &MaskOverBlock, &StretchCopy, &StretchOver, &RotateOver};
    return &kTable;
}

}  // namespace korvane::kernels::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

#include <algorithm>
#include <cstring>

#include "engine/draw/kernels/Targets.h"

namespace korvane::kernels {
namespace {

struct BuiltTarget {
    std::int64_t target;
    const KernelTable* (*table)();
};

/// Every target that was built, best first. The last one is what the compiler may use anywhere.
constexpr BuiltTarget kBuiltTargets[] = {
    {HWY_AVX2, HWY_CHOOSE_AVX2(Table)},
    {HWY_SSE4, HWY_CHOOSE_SSE4(Table)},
    {HWY_NEON, HWY_CHOOSE_NEON(Table)},
    {HWY_STATIC_TARGET, &HWY_STATIC_DISPATCH(Table)},
};

const KernelTable* activeTable = nullptr;

const KernelTable& Active() {
    if (activeTable == nullptr) {
        UseTarget(AvailableTargets().front());
    }
    return *activeTable;
}

/// The colour with no channel above its alpha, without which the sums of the mask kernel would not fit.
Pixel Premultiplied(Pixel color) {
    const Pixel alpha = color >> 24;
    const Pixel red = std::min((color >> 16) & 255U, alpha);
    const Pixel green = std::min((color >> 8) & 255U, alpha);
    const Pixel blue = std::min(color & 255U, alpha);
    return alpha << 24 | red << 16 | green << 8 | blue;
}

}  // namespace

std::vector<std::int64_t> BuiltTargets() {
    std::vector<std::int64_t> targets;
    for (const BuiltTarget& built : kBuiltTargets) {
        const bool listed = std::find(targets.begin(), targets.end(), built.target) != targets.end();
        if (built.table != nullptr && !listed) {
            targets.push_back(built.target);
        }
    }
    return targets;
}

void UseTarget(std::int64_t target) {
    for (const BuiltTarget& built : kBuiltTargets) {
        if (built.target == target && built.table != nullptr) {
            activeTable = built.table();
            return;
        }
    }
}

void CopyBlock(Pixel* target, std::ptrdiff_t targetStride, const Pixel* source, std::ptrdiff_t sourceStride,
               int width, int height) {
    std::size_t rowBytes = static_cast<std::size_t>(width) * sizeof(Pixel);
    if (targetStride == width && sourceStride == width) {
        rowBytes *= static_cast<std::size_t>(height);
        height = 1;
    }
    if (source < target) {
        target += (height - 1) * targetStride;
        source += (height - 1) * sourceStride;
        targetStride = -targetStride;
        sourceStride = -sourceStride;
    }
    for (int y = 0; y < height; ++y) {
        std::memmove(target, source, rowBytes);
        target += targetStride;
        source += sourceStride;
    }
}

void OverBlock(Pixel* target, std::ptrdiff_t targetStride, const Pixel* source, std::ptrdiff_t sourceStride,
               int width, int height) {
    Active().overBlock(target, targetStride, source, sourceStride, width, height);
}

void OverRuns(Pixel* target, std::ptrdiff_t targetStride, const Pixel* image, std::ptrdiff_t imageStride,
              const RunTable& runs, int sourceX, int sourceY, int width, int height) {
    const Pixel* source = image + sourceY * imageStride + sourceX;
    switch (runs.coverage) {
        case Coverage::Empty:
            break;
        case Coverage::Solid:
            CopyBlock(target, targetStride, source, imageStride, width, height);
            break;
        case Coverage::Soft:
            Active().overBlock(target, targetStride, source, imageStride, width, height);
            break;
        case Coverage::Mixed:
            Active().overRuns(target, targetStride, image, imageStride, runs, sourceX, sourceY, width,
                              height);
            break;
    }
}

void FillBlock(Pixel* target, std::ptrdiff_t targetStride, Pixel color, int width, int height) {
    Active().fillBlock(target, targetStride, color, width, height);
}

void FillOverBlock(Pixel* target, std::ptrdiff_t targetStride, Pixel color, int width, int height) {
    if (color >= 0xFF000000U) {
        Active().fillBlock(target, targetStride, color, width, height);
    } else if (color != 0) {
        Active().fillOverBlock(target, targetStride, color, width, height);
    }
}

void MaskOverBlock(Pixel* target, std::ptrdiff_t targetStride, const std::uint8_t* mask,
                   std::ptrdiff_t maskStride, Pixel color, int width, int height) {
    Active().maskOverBlock(target, targetStride, mask, maskStride, Premultiplied(color), width, height);
}

void StretchCopy(Pixel* target, std::ptrdiff_t targetStride, const Scaling& scaling, const Box& part) {
    Active().stretchCopy(target, targetStride, scaling, part);
}

void StretchOver(Pixel* target, std::ptrdiff_t targetStride, const Scaling& scaling, const Box& part) {
    Active().stretchOver(target, targetStride, scaling, part);
}

void RotateOver(Pixel* target, std::ptrdiff_t targetStride, const Box& clip, const Rotation& rotation) {
    InverseMap map;
    if (MakeInverseMap(rotation, map)) {
        Active().rotateOver(target, targetStride, BoundsOf(clip, rotation, map), rotation, map);
    }
}

Box RotatedBounds(const Box& clip, const Rotation& rotation) {
    InverseMap map;
    return MakeInverseMap(rotation, map) ? BoundsOf(clip, rotation, map) : Box{};
}

}  // namespace korvane::kernels

#endif  // HWY_ONCE
