#pragma once

#include <string>

namespace korvane {

/// The name of a region or lock in ASCII. Empty for null and for what is no such name.
std::string SharedName(const wchar_t* name);

}  // namespace korvane
