#pragma once

#include <vector>

#include "tools/lqlayout/LayoutText.h"

namespace korvane::tools {

/// Follows the tree of controls from the section of the outermost one. Returns the section of each control,
/// in the order of the records that the text compiles to. What is missing, unknown or beyond the bounds of
/// the format are errors among the findings; only without any of these the result is complete.
std::vector<const TextSection*> ListCtrlSections(LayoutText& text, Findings& findings);

}  // namespace korvane::tools
