#include "engine/text/shape/Shaper.h"

#include <algorithm>
#include <cstdint>
#include <hb.h>
#include <iterator>

#include "engine/text/shape/MissingBox.h"

namespace korvane {

namespace {

/// HarfBuzz counts in 1/64 pixel.
constexpr std::int64_t kUnit = 64;
/// Farthest pen position in pixels: far beyond any honest text, and safe to calculate with.
constexpr std::int64_t kFarthest = 1 << 24;
/// A font may turn characters into many glyphs; this many is enough for every honest one.
constexpr std::size_t kMaxGlyphs = 4 * kMaxTextLength;

/// Scripts whose letters do not touch each other.
constexpr hb_script_t kLettersApart[] = {
    HB_SCRIPT_LATIN,    HB_SCRIPT_GREEK,    HB_SCRIPT_CYRILLIC, HB_SCRIPT_HAN,  HB_SCRIPT_HIRAGANA,
    HB_SCRIPT_KATAKANA, HB_SCRIPT_BOPOMOFO, HB_SCRIPT_HANGUL,   HB_SCRIPT_THAI, HB_SCRIPT_LAO,
    HB_SCRIPT_HEBREW,   HB_SCRIPT_ARMENIAN, HB_SCRIPT_GEORGIAN,
};

bool StandApart(std::uint32_t script) {
    return std::any_of(std::begin(kLettersApart), std::end(kLettersApart),
                       [script](hb_script_t apart) { return static_cast<std::uint32_t>(apart) == script; });
}

/// To the nearest pixel, halves up.
std::int64_t ToPixels(std::int64_t units) {
    return (units + kUnit / 2) >> 6;
}

int Bounded(std::int64_t pixels) {
    return static_cast<int>(std::clamp(pixels, -kFarthest, kFarthest));
}

}  // namespace

Shaper::Shaper(FontIndex& index) : index_(index) {}

Shaper::~Shaper() = default;

void Shaper::DestroyBuffer::operator()(hb_buffer_t* buffer) const {
    hb_buffer_destroy(buffer);
}

TextRun Shaper::Shape(std::wstring_view text, FaceId primary, PixelSize size) {
    if (!buffer_)
        buffer_.reset(hb_buffer_create());
    glyphs_.clear();
    pen_ = 0;
    const std::vector<char32_t> line = LineCharacters(text);
    for (const TextItem& item : SplitIntoItems(line, primary, index_))
        if (item.face == kNoFace)
            AddBoxes(line, item, size);
        else
            AddShaped(line, item, size);
    TextRun run;
    run.width = std::max(0, Bounded(pen_));
    run.glyphs.assign(glyphs_.begin(), glyphs_.end());
    return run;
}

void Shaper::AddBoxes(const std::vector<char32_t>& line, const TextItem& item, PixelSize size) {
    for (std::size_t i = item.start; i < item.start + item.length; ++i) {
        if (IsInvisible(line[i]))
            continue;
        if (line[i] != U' ') {
            PlacedGlyph box;
            box.x = Bounded(pen_);
            glyphs_.push_back(box);
        }
        pen_ += MissingBoxAdvance(size);
    }
}

void Shaper::AddShaped(const std::vector<char32_t>& line, const TextItem& item, PixelSize size) {
    Typeface* typeface = index_.Open(item.face);
    if (typeface == nullptr) {
        AddBoxes(line, item, size);
        return;
    }
    static_assert(sizeof(char32_t) == sizeof(hb_codepoint_t));
    hb_buffer_t* buffer = buffer_.get();
    hb_buffer_clear_contents(buffer);
    hb_buffer_add_codepoints(buffer, reinterpret_cast<const hb_codepoint_t*>(line.data()),
                             static_cast<int>(line.size()), static_cast<unsigned>(item.start),
                             static_cast<int>(item.length));
    hb_buffer_set_direction(buffer, item.IsRightToLeft() ? HB_DIRECTION_RTL : HB_DIRECTION_LTR);
    hb_buffer_set_script(buffer, static_cast<hb_script_t>(item.script));
    // No language is set: the default would be the process's locale, and pixels must not depend on it.
    hb_shape(typeface->ShapingFont(size), buffer, nullptr, 0);
    if (StandApart(item.script))
        PlaceApart(item);
    else
        PlaceJoined(item);
}

void Shaper::PlaceApart(const TextItem& item) {
    unsigned count = 0;
    const hb_glyph_info_t* infos = hb_buffer_get_glyph_infos(buffer_.get(), &count);
    const hb_glyph_position_t* positions = hb_buffer_get_glyph_positions(buffer_.get(), &count);
    std::int64_t inCluster = 0;  // marks are placed exactly, relative to the character that they belong to
    for (unsigned i = 0; i < count && glyphs_.size() < kMaxGlyphs; ++i) {
        PlacedGlyph placed;
        placed.x = Bounded(pen_ + ToPixels(inCluster + positions[i].x_offset));
        placed.y = Bounded(-ToPixels(positions[i].y_offset));
        placed.glyph = infos[i].codepoint;
        placed.face = static_cast<std::int16_t>(item.face);
        glyphs_.push_back(placed);
        inCluster += positions[i].x_advance;
        if (i + 1 == count || infos[i + 1].cluster != infos[i].cluster) {
            pen_ += ToPixels(inCluster);
            inCluster = 0;
        }
    }
}

void Shaper::PlaceJoined(const TextItem& item) {
    constexpr std::int64_t kPhase = kUnit / Typeface::kPhases;
    unsigned count = 0;
    const hb_glyph_info_t* infos = hb_buffer_get_glyph_infos(buffer_.get(), &count);
    const hb_glyph_position_t* positions = hb_buffer_get_glyph_positions(buffer_.get(), &count);
    std::int64_t advance = 0;
    for (unsigned i = 0; i < count && glyphs_.size() < kMaxGlyphs; ++i) {
        const std::int64_t quarters = (advance + positions[i].x_offset + kPhase / 2) >> 4;
        PlacedGlyph placed;
        placed.x = Bounded(pen_ + (quarters >> 2));
        placed.y = Bounded(-ToPixels(positions[i].y_offset));
        placed.glyph = infos[i].codepoint;
        placed.face = static_cast<std::int16_t>(item.face);
        placed.phase = static_cast<std::uint8_t>(quarters & 3);
        glyphs_.push_back(placed);
        advance += positions[i].x_advance;
    }
    pen_ += ToPixels(advance);
}

}  // namespace korvane
