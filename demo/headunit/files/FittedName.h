#pragma once

#include <string>

namespace korvane::demo {

/// A name as a label of the file view shows it: one that is wider than `width` pixels in text of that size
/// ends in an ellipsis.
std::wstring FittedName(const std::wstring& name, int textSize, int width);

}  // namespace korvane::demo
