#pragma once

#include <string_view>

namespace korvane {

/// Whether a name fits a pattern: `*` stands for any characters, `?` for any one, the rest for itself without
/// regard to case. "*.*" fits every name, with a dot or without.
bool FitsWildcard(std::wstring_view name, std::wstring_view pattern);

}  // namespace korvane
