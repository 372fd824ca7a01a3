#pragma once

#include <string>
#include <vector>

#include "tools/headunitctl/Outcome.h"

namespace korvane::tools {

/// Prints the named fields of the system record, or all of them, one a line.
Outcome PrintFields(const std::vector<std::string>& names);

/// Sets a field to a decimal number of 0 to 255.
Outcome SetField(const std::string& name, const std::string& value);

}  // namespace korvane::tools
