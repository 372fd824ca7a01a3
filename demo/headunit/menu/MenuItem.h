#pragma once

namespace korvane::demo {

/// What the menu leads to.
enum class MenuItem { Radio, Media, Sources, Gauges, Files, Settings };

}  // namespace korvane::demo
