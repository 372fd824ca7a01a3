#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "engine/text/face/FontIndex.h"

namespace korvane {

/// A stretch of characters with one face, one script and one direction.
struct TextItem {
    std::size_t start = 0;
    std::size_t length = 0;
    FaceId face = kNoFace;
    std::uint32_t script = 0;  ///< an hb_script_t
    std::uint8_t level = 0;    ///< of the bidirectional algorithm: odd ones run from right to left

    bool IsRightToLeft() const { return level % 2 != 0; }
};

/// The code points of one line: control characters and line breaks become spaces, what is no character
/// becomes U+FFFD.
std::vector<char32_t> LineCharacters(std::wstring_view text);

/// True for characters that are never seen themselves, such as joiners and direction marks: no font needs to
/// have them.
bool IsInvisible(char32_t character);

/// Splits a line into items, in the order in which they are seen from left to right.
std::vector<TextItem> SplitIntoItems(const std::vector<char32_t>& line, FaceId primary, FontIndex& index);

}  // namespace korvane
