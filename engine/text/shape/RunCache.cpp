#include "engine/text/shape/RunCache.h"

#include <utility>

#include "engine/text/shape/InkJoiner.h"

namespace korvane {

namespace {

constexpr std::size_t kBudget = std::size_t{512} * 1024;

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

}  // namespace

RunCache::RunCache(FontIndex& index, GlyphCache& glyphs) : shaper_(index), glyphs_(glyphs), table_(kBudget) {}

const TextRun& RunCache::Get(std::wstring_view text, FaceId primary, PixelSize size) {
    return GetEntry(text, primary, size).run;
}

const TextRun& RunCache::GetForDrawing(std::wstring_view text, FaceId primary, PixelSize size) {
    Entry& entry = GetEntry(text, primary, size);
    if (entry.run.ink == TextRun::Ink::NotJoined) {
        TextRun& run = entry.run;
        if (JoinInk(run.glyphs.data(), run.glyphs.size(), size, glyphs_, run.mask)) {
            run.ink = TextRun::Ink::Joined;
            std::vector<PlacedGlyph>().swap(run.glyphs);
        } else {
            run.ink = TextRun::Ink::TooLarge;
        }
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

}  // namespace korvane
