#pragma once

#include <cstdint>
#include <string>

namespace korvane::demo {

/// The size of a file: "512 B", from a thousand on with one decimal, cut off: "1.5 kB", "20.0 MB".
std::wstring SizeText(std::uint64_t bytes);

}  // namespace korvane::demo
