#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

namespace korvane {

/// The nearest int.
inline int Saturated(std::int64_t number) {
    using Limits = std::numeric_limits<int>;
    return static_cast<int>(std::clamp<std::int64_t>(number, Limits::min(), Limits::max()));
}

}  // namespace korvane
