#include "engine/text/shape/InkJoiner.h"

#include <algorithm>
#include <climits>
#include <cstdint>

#include "engine/text/shape/GlyphCache.h"

namespace korvane {

namespace {

/// Edges of the ink; right and bottom lie outside it.
struct Edges {
    std::int64_t left = INT_MAX;
    std::int64_t top = INT_MAX;
    std::int64_t right = INT_MIN;
    std::int64_t bottom = INT_MIN;

    void Include(const GlyphMask& glyph, const PlacedGlyph& placed) {
        const std::int64_t x = std::int64_t{placed.x} + glyph.left;
        const std::int64_t y = std::int64_t{placed.y} + glyph.top;
        left = std::min(left, x);
        top = std::min(top, y);
        right = std::max(right, x + glyph.width);
        bottom = std::max(bottom, y + glyph.height);
    }
};

void AddCoverage(GlyphMask& joined, const GlyphMask& glyph, int x, int y) {
    for (int row = 0; row < glyph.height; ++row) {
        const std::uint8_t* from = glyph.Row(row);
        std::uint8_t* to = joined.Row(y + row) + x;
        for (int column = 0; column < glyph.width; ++column)
            to[column] = static_cast<std::uint8_t>(std::min(255, to[column] + from[column]));
    }
}

}  // namespace

bool JoinInk(const PlacedGlyph* glyphs, std::size_t count, PixelSize size, GlyphCache& cache,
             GlyphMask& joined) {
    Edges edges;
    for (std::size_t i = 0; i < count; ++i) {
        const GlyphMask& glyph = cache.Get(glyphs[i], size);
        if (glyph.IsEmpty())
            continue;
        edges.Include(glyph, glyphs[i]);
        if ((edges.right - edges.left) * (edges.bottom - edges.top) > kLargestJoinedMask)
            return false;
    }
    if (edges.left >= edges.right) {
        joined.Clear(0, 0);
        return true;
    }
    joined.left = static_cast<int>(edges.left);
    joined.top = static_cast<int>(edges.top);
    joined.Clear(static_cast<int>(edges.right - edges.left), static_cast<int>(edges.bottom - edges.top));
    for (std::size_t i = 0; i < count; ++i) {
        const GlyphMask& glyph = cache.Get(glyphs[i], size);
        AddCoverage(joined, glyph, glyphs[i].x + glyph.left - joined.left,
                    glyphs[i].y + glyph.top - joined.top);
    }
    return true;
}

}  // namespace korvane
