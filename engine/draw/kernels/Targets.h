#pragma once

#include <cstdint>
#include <vector>

namespace korvane::kernels {

/// The instruction sets for which the kernels were built and which this machine has, best first. Every one is
/// one bit.
std::vector<std::int64_t> AvailableTargets();

/// A target's name, such as "AVX2".
const char* TargetName(std::int64_t target);

/// Makes the kernels run on one of the available targets; 0 goes back to the best. For tests and benchmarks.
void ForceTarget(std::int64_t target);

}  // namespace korvane::kernels
