#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "engine/text/face/PixelSize.h"
#include "engine/text/shape/LruTable.h"
#include "engine/text/shape/Shaper.h"
#include "engine/text/shape/TextRun.h"

namespace korvane {

class GlyphCache;

/// Shaped lines, up to half a megabyte of them, so that a line that is drawn again costs no more than its
/// pixels.
class RunCache {
  public:
    RunCache(FontIndex& index, GlyphCache& glyphs);

    /// The shaped line. Valid until the next call of a member function.
    const TextRun& Get(std::wstring_view text, FaceId primary, PixelSize size);
    /// The same, its ink joined or found too large.
    const TextRun& GetForDrawing(std::wstring_view text, FaceId primary, PixelSize size);

  private:
    struct Entry {
        std::wstring text;
        FaceId primary = kNoFace;
        PixelSize size;
        TextRun run;

        std::size_t Bytes() const {
            return sizeof(Entry) + text.capacity() * sizeof(wchar_t) +
                   run.glyphs.capacity() * sizeof(PlacedGlyph) + run.mask.coverage.capacity();
        }
    };

    Entry& GetEntry(std::wstring_view text, FaceId primary, PixelSize size);

    Shaper shaper_;
    GlyphCache& glyphs_;
    LruTable<Entry, 512> table_;
};

}  // namespace korvane
