#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "engine/draw/kernels/Kernels.h"

namespace korvane::kernels {

struct InverseMap;

/// One target's kernels. Chosen once per process, so that a call costs one indirect jump.
struct KernelTable {
    void (*overBlock)(Pixel*, std::ptrdiff_t, const Pixel*, std::ptrdiff_t, int, int);
    void (*overRuns)(Pixel*, std::ptrdiff_t, const Pixel*, std::ptrdiff_t, const RunTable&, int, int, int,
                     int);
    void (*fillBlock)(Pixel*, std::ptrdiff_t, Pixel, int, int);
    void (*fillOverBlock)(Pixel*, std::ptrdiff_t, Pixel, int, int);
    void (*maskOverBlock)(Pixel*, std::ptrdiff_t, const std::uint8_t*, std::ptrdiff_t, Pixel, int, int);
    void (*stretchCopy)(Pixel*, std::ptrdiff_t, const Scaling&, const Box&);
    void (*stretchOver)(Pixel*, std::ptrdiff_t, const Scaling&, const Box&);
    void (*rotateOver)(Pixel*, std::ptrdiff_t, const Box&, const Rotation&, const InverseMap&);
};

/// The targets for which the kernels were built, best first. Each is one bit.
std::vector<std::int64_t> BuiltTargets();

/// Makes the kernels run on a built target that the machine has.
void UseTarget(std::int64_t target);

}  // namespace korvane::kernels
