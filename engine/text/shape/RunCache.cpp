#include "engine/text/shape/RunCache.h"

#include <algorithm>
#include <climits>
#include <utility>

#include "engine/text/shape/GlyphCache.h"

namespace korvane {

namespace {

constexpr std::size_t kBudget = 512 * 1024;
/// A line across an 800 pixel wide screen at 30 pixels still fits; larger ones are drawn glyph by glyph.
constexpr std::int64_t kLargestMask = 32 * 1024;

std::uint64_t Hash(std::wstring_view text, FaceId primary, PixelSize size) {
    constexpr std::uint64_t kPrime = 0x100000001B3U;
    std::uint64_t hash = 0xCBF29CE484222325U;
    for (const wchar_t unit : text)
        hash = (hash ^ static_cast<std::uint64_t>(unit)) * kPrime;
    hash = (hash ^ static_cast<std::uint64_t>(size.width)) * kPrime;
    hash = (hash ^ static_cast<std::uint64_t>(size.height)) * kPrime;
    hash = (hash ^ static_cast<std::uint64_t>(primary)) * kPrime;
    return hash ^ hash >> 32;
}

/// Where letters touch, each covers a share of the pixel: the shares add up.
void AddCoverage(GlyphMask& whole, const GlyphMask& glyph, int x, int y) {
    for (int row = 0; row < glyph.height; ++row) {
        const std::uint8_t* from = glyph.coverage.data() + static_cast<std::ptrdiff_t>(row) * glyph.width;
        std::uint8_t* to = whole.coverage.data() + static_cast<std::ptrdiff_t>(y + row) * whole.width + x;
        for (int column = 0; column < glyph.width; ++column)
            to[column] = static_cast<std::uint8_t>(std::min(255, to[column] + from[column]));
    }
}

}  // namespace

RunCache::RunCache(FontIndex& index, GlyphCache& glyphs) : shaper_(index), glyphs_(glyphs), table_(kBudget) {}

const TextRun& RunCache::Get(std::wstring_view text, FaceId primary, PixelSize size) {
    return GetEntry(text, primary, size).run;
}

const TextRun& RunCache::GetForDrawing(std::wstring_view text, FaceId primary, PixelSize size) {
    Entry& entry = GetEntry(text, primary, size);
    if (entry.run.ink == TextRun::Ink::NotJoined) {
        JoinInk(entry.run, size);
        table_.Recount();
    }
    return entry.run;
}

RunCache::Entry& RunCache::GetEntry(std::wstring_view text, FaceId primary, PixelSize size) {
    const std::uint64_t hash = Hash(text, primary, size);
    Entry* found = table_.Find(hash, [&](const Entry& entry) {
        return entry.size == size && entry.primary == primary && entry.text == text;
    });
    if (found != nullptr)
        return *found;
    Entry entry;
    entry.text = text;
    entry.primary = primary;
    entry.size = size;
    entry.run = shaper_.Shape(text, primary, size);
    return table_.Add(hash, std::move(entry));
}

void RunCache::JoinInk(TextRun& run, PixelSize size) {
    std::int64_t left = INT_MAX;
    std::int64_t top = INT_MAX;
    std::int64_t right = INT_MIN;
    std::int64_t bottom = INT_MIN;
    for (const PlacedGlyph& placed : run.glyphs) {
        const GlyphMask& glyph = glyphs_.Get(placed, size);
        if (glyph.coverage.empty())
            continue;
        left = std::min<std::int64_t>(left, placed.x + glyph.left);
        top = std::min<std::int64_t>(top, placed.y + glyph.top);
        right = std::max<std::int64_t>(right, placed.x + glyph.left + glyph.width);
        bottom = std::max<std::int64_t>(bottom, placed.y + glyph.top + glyph.height);
        if ((right - left) * (bottom - top) > kLargestMask) {
            run.ink = TextRun::Ink::TooLarge;
            return;
        }
    }
    run.ink = TextRun::Ink::Joined;
    if (left < right) {
        GlyphMask& whole = run.mask;
        whole.left = static_cast<int>(left);
        whole.top = static_cast<int>(top);
        whole.width = static_cast<int>(right - left);
        whole.height = static_cast<int>(bottom - top);
        whole.coverage.assign(static_cast<std::size_t>(whole.width) * static_cast<std::size_t>(whole.height),
                              0);
        for (const PlacedGlyph& placed : run.glyphs) {
            const GlyphMask& glyph = glyphs_.Get(placed, size);
            AddCoverage(whole, glyph, placed.x + glyph.left - whole.left, placed.y + glyph.top - whole.top);
        }
    }
    std::vector<PlacedGlyph>().swap(run.glyphs);
}

}  // namespace korvane
