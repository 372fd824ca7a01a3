#pragma once

#include <cstdint>

#include "engine/text/face/FontIndex.h"
#include "engine/text/face/GlyphMask.h"
#include "engine/text/face/PixelSize.h"
#include "engine/text/shape/LruTable.h"
#include "engine/text/shape/TextRun.h"

namespace korvane {

/// Rasterised glyphs, up to half a megabyte of them.
class GlyphCache {
  public:
    explicit GlyphCache(FontIndex& index);

    /// Valid until the next call.
    const GlyphMask& Get(const PlacedGlyph& placed, PixelSize size);

  private:
    struct Entry {
        std::uint64_t key = 0;
        GlyphMask mask;

        std::size_t Bytes() const { return sizeof(Entry) + mask.coverage.capacity(); }
    };

    FontIndex& index_;
    LruTable<Entry, 2048> table_;
};

}  // namespace korvane
