#pragma once

#include <string_view>

#include "platform/Export.h"

/// Comparing without regard to case, the same in every locale: Unicode's simple case folding for Latin
/// (ASCII, Latin-1, Latin Extended-A), Greek, Cyrillic and full-width letters. Other characters fold to
/// themselves.
namespace korvane {

KORVANE_API char32_t FoldCase(char32_t codePoint);
KORVANE_API bool EqualFolded(std::wstring_view left, std::wstring_view right);

}  // namespace korvane
