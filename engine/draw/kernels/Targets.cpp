#include "engine/draw/kernels/Targets.h"

#include <hwy/highway.h>

#include "engine/draw/kernels/KernelTable.h"

namespace korvane::kernels {

std::vector<std::int64_t> AvailableTargets() {
    std::vector<std::int64_t> targets = hwy::SupportedAndGeneratedTargets();
#if HWY_TARGETS & HWY_SCALAR
    if (targets.empty() || targets.back() != HWY_SCALAR) {
        targets.push_back(HWY_SCALAR);
    }
#endif
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
