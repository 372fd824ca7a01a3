#pragma once

#include <cstdint>
#include <vector>

#include "engine/text/face/FontIndex.h"
#include "engine/text/face/GlyphMask.h"

namespace korvane {

/// A glyph with its pen position, in whole pixels from the line's start and from its baseline downwards.
struct PlacedGlyph {
    int x = 0;
    int y = 0;
    std::uint32_t glyph = 0;
    std::int16_t face = kNoFace;  ///< kNoFace: an empty box
    std::uint8_t phase = 0;       ///< quarter pixels that the pen stands farther right
};

/// A shaped line of text.
struct TextRun {
    int width = 0;  ///< sum of the advances, 0 or more
    std::vector<PlacedGlyph> glyphs;

    enum class Ink {
        NotJoined,  ///< the line has not been drawn yet
        Joined,     ///< `mask` is the ink of the whole line, the glyphs are dropped
        TooLarge,   ///< to be drawn glyph by glyph
    };
    Ink ink = Ink::NotJoined;
    GlyphMask mask;
};

/// Text is measured and drawn up to this many characters; what follows is ignored.
constexpr std::size_t kMaxTextLength = 4096;

}  // namespace korvane
