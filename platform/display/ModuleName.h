#pragma once

#include <string_view>

namespace korvane {

/// Small letters and digits only, so that a name cannot lead to another folder.
inline bool IsDisplayModuleName(std::string_view name) {
    return !name.empty() && name.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789") == name.npos;
}

}  // namespace korvane
