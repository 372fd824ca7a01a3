#include "engine/text/shape/GlyphCache.h"

#include <utility>

#include "engine/text/shape/MissingBox.h"

namespace korvane {

namespace {

constexpr std::size_t kBudget = std::size_t{512} * 1024;

/// All that tells two masks apart, without loss: 16 bits of face, 9 of each size (1 to 512), 2 of phase and
/// FreeType's 16 bits of glyph.
std::uint64_t Key(const PlacedGlyph& placed, PixelSize size) {
    std::uint64_t key = static_cast<std::uint16_t>(placed.face);
    key = key << 9 | static_cast<std::uint64_t>(size.width - 1);
    key = key << 9 | static_cast<std::uint64_t>(size.height - 1);
    key = key << 2 | placed.phase;
    return key << 16 | (placed.glyph & 0xFFFF);
}

std::uint64_t Mixed(std::uint64_t key) {
    key *= 0x9E3779B97F4A7C15U;
    return key ^ key >> 32;
}

}  // namespace

GlyphCache::GlyphCache(FontIndex& index) : index_(index), table_(kBudget) {}

const GlyphMask& GlyphCache::Get(const PlacedGlyph& placed, PixelSize size) {
    const std::uint64_t key = Key(placed, size);
    const std::uint64_t hash = Mixed(key);
    if (const Entry* found = table_.Find(hash, [key](const Entry& entry) { return entry.key == key; }))
        return found->mask;
    Entry entry;
    entry.key = key;
    if (placed.face == kNoFace)
        entry.mask = RasteriseMissingBox(size);
    else if (Typeface* typeface = index_.Open(placed.face))
        entry.mask = typeface->Rasterise(placed.glyph, size, placed.phase);
    return table_.Add(hash, std::move(entry)).mask;
}

}  // namespace korvane
