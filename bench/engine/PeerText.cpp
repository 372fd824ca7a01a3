#include "bench/engine/PeerText.h"

#include <cstring>
#include <stdexcept>

namespace korvane::bench {

PeerText::PeerText(const std::string& font, int size) : cache_(pixman_glyph_cache_create()) {
    if (FT_Init_FreeType(&library_) != 0 || FT_New_Face(library_, font.c_str(), 0, &face_) != 0)
        throw std::runtime_error("cannot open the font " + font);
    FT_Set_Pixel_Sizes(face_, 0, static_cast<FT_UInt>(size));
    ascent_ = static_cast<int>(face_->size->metrics.ascender / 64);
    const pixman_color_t white = {0xFFFF, 0xFFFF, 0xFFFF, 0xFFFF};
    color_ = pixman_image_create_solid_fill(&white);
}

PeerText::~PeerText() {
    pixman_image_unref(color_);
    pixman_glyph_cache_destroy(cache_);
    FT_Done_Face(face_);
    FT_Done_FreeType(library_);
}

PeerText::Glyph& PeerText::Find(wchar_t character) {
    const auto known = glyphs_.find(character);
    if (known != glyphs_.end())
        return known->second;
    Glyph& glyph = glyphs_[character];
    FT_Load_Char(face_, static_cast<FT_ULong>(character), FT_LOAD_RENDER | FT_LOAD_TARGET_LIGHT);
    const FT_GlyphSlot slot = face_->glyph;
    glyph.advance = static_cast<int>(slot->advance.x / 64);
    const int width = static_cast<int>(slot->bitmap.width);
    const int height = static_cast<int>(slot->bitmap.rows);
    if (width == 0 || height == 0)
        return glyph;
    pixman_image_t* mask = pixman_image_create_bits(PIXMAN_a8, width, height, nullptr, 0);
    for (int y = 0; y < height; ++y) {
        std::memcpy(
            reinterpret_cast<unsigned char*>(pixman_image_get_data(mask)) + y * pixman_image_get_stride(mask),
            slot->bitmap.buffer + y * slot->bitmap.pitch, static_cast<std::size_t>(width));
    }
    pixman_glyph_cache_freeze(cache_);
    glyph.cached = pixman_glyph_cache_insert(cache_, face_,
                                             reinterpret_cast<void*>(static_cast<std::intptr_t>(character)),
                                             -slot->bitmap_left, slot->bitmap_top, mask);
    pixman_glyph_cache_thaw(cache_);
    pixman_image_unref(mask);
    return glyph;
}

void PeerText::Draw(const wchar_t* text, pixman_image_t* target, int x, int y) {
    line_.clear();
    int pen = 0;
    for (; *text; ++text) {
        const Glyph& glyph = Find(*text);
        if (glyph.cached)
            line_.push_back({pen, 0, glyph.cached});
        pen += glyph.advance;
    }
    pixman_glyph_cache_freeze(cache_);
    pixman_composite_glyphs_no_mask(PIXMAN_OP_OVER, color_, target, 0, 0, x, y + ascent_, cache_,
                                    static_cast<int>(line_.size()), line_.data());
    pixman_glyph_cache_thaw(cache_);
}

}  // namespace korvane::bench
