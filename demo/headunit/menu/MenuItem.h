#pragma once

#include <cstddef>

namespace korvane::demo {

/// What the menu leads to.
enum class MenuItem { Radio, Media, Sources, Gauges, Files, Settings };

constexpr std::size_t kMenuItems = 6;

}  // namespace korvane::demo
