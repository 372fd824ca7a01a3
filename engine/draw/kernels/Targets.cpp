#include "engine/draw/kernels/Targets.h"

#include <algorithm>
#include <hwy/highway.h>

#include "engine/draw/kernels/KernelTable.h"

namespace korvane::kernels {

std::vector<std::int64_t> AvailableTargets() {
    std::vector<std::int64_t> targets = hwy::SupportedAndGeneratedTargets();
    // The fallback that every machine can run need not be reported as supported.
    if (std::find(targets.begin(), targets.end(), HWY_STATIC_TARGET) == targets.end()) {
        targets.push_back(HWY_STATIC_TARGET);
    }
    return targets;
}

const char* TargetName(std::int64_t target) {
    return hwy::TargetName(target);
}

void ForceTarget(std::int64_t target) {
    hwy::SetSupportedTargetsForTest(target);
    ChooseTable();
}

}  // namespace korvane::kernels
