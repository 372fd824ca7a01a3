#include "engine/draw/kernels/Targets.h"

#include <algorithm>
#include <hwy/highway.h>

#include "engine/draw/kernels/KernelTable.h"

namespace korvane::kernels {

namespace {

/// Whether this machine, and its operating system, can run code for the target. Asked here rather than of
/// Highway's own library: loading that measures the machine's timer, for longer than an application's first
/// frame takes.
bool HasTarget(std::int64_t target) {
    if (target == HWY_STATIC_TARGET) {
        return true;
    }
#if HWY_ARCH_X86
    // What Highway's code for these targets is compiled with.
    const bool sse4 = __builtin_cpu_supports("ssse3") && __builtin_cpu_supports("sse4.1") &&
                      __builtin_cpu_supports("sse4.2") && __builtin_cpu_supports("aes") &&
                      __builtin_cpu_supports("pclmul");
    // No machine has AVX2 without F16C, the one of its companions that not every compiler can ask for.
    const bool avx2 = sse4 && __builtin_cpu_supports("avx2") && __builtin_cpu_supports("bmi") &&
                      __builtin_cpu_supports("bmi2") && __builtin_cpu_supports("fma");
    return (target == HWY_SSE4 && sse4) || (target == HWY_AVX2 && avx2);
#else
    return false;
#endif
}

}  // namespace

std::vector<std::int64_t> AvailableTargets() {
    std::vector<std::int64_t> targets = BuiltTargets();
    targets.erase(std::remove_if(targets.begin(), targets.end(),
                                 [](std::int64_t target) { return !HasTarget(target); }),
                  targets.end());
    return targets;
}

const char* TargetName(std::int64_t target) {
    return hwy::TargetName(target);
}

void ForceTarget(std::int64_t target) {
    UseTarget(target != 0 ? target : AvailableTargets().front());
}

}  // namespace korvane::kernels
