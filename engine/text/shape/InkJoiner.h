#pragma once

#include <cstddef>

#include "engine/text/face/GlyphMask.h"
#include "engine/text/face/PixelSize.h"
#include "engine/text/shape/TextRun.h"

namespace korvane {

class GlyphCache;

/// Pixels of the largest mask that is made of a line: one across an 800 pixel wide screen at 30 pixels fits.
/// Larger lines are drawn glyph by glyph.
constexpr int kLargestJoinedMask = 32 * 1024;

/// Puts the ink of placed glyphs into one mask, so that a line is drawn by one call of one kernel. Where
/// glyphs touch, each covers a share of the pixel: the shares add up.
///
/// False, with `joined` as it was, when the mask would be too large.
bool JoinInk(const PlacedGlyph* glyphs, std::size_t count, PixelSize size, GlyphCache& cache,
             GlyphMask& joined);

}  // namespace korvane
