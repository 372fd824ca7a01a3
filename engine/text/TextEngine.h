#pragma once

#include <cstddef>

#include "engine/text/face/FontIndex.h"
#include "engine/text/face/PixelSize.h"
#include "engine/text/shape/GlyphCache.h"
#include "engine/text/shape/NumberLayout.h"
#include "engine/text/shape/RunCache.h"

namespace korvane {

/// A line of text ready to be drawn: either one mask, relative to the start of its baseline, or glyphs.
struct LaidOutLine {
    int width = 0;
    const GlyphMask* mask = nullptr;
    const PlacedGlyph* glyphs = nullptr;
    std::size_t glyphCount = 0;
};

/// Fonts, shaping and caches behind all CLQFont objects.
class TextEngine {
  public:
    FontIndex& Fonts() { return fonts_; }

    /// Width of a line in pixels.
    int Measure(const wchar_t* text, FaceId face, PixelSize size);
    /// Valid until the next call of a member function other than `Glyph`.
    LaidOutLine LayOut(const wchar_t* text, FaceId face, PixelSize size);
    /// Valid until the next call.
    const GlyphMask& Glyph(const PlacedGlyph& placed, PixelSize size) { return glyphs_.Get(placed, size); }

    /// Rows of a line of `size.height` rows above its baseline.
    int Ascent(FaceId face, PixelSize size);

  private:
    FontIndex fonts_;
    GlyphCache glyphs_{fonts_};
    RunCache runs_{fonts_, glyphs_};
    NumberLayout numbers_{fonts_};
};

}  // namespace korvane
