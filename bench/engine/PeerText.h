#pragma once

#include <ft2build.h>
#include <map>
#include <string>
#include <vector>
#include FT_FREETYPE_H
#include <pixman.h>

namespace korvane::bench {

/// Text through pixman's glyph cache: glyph masks by FreeType, positions by their advances.
class PeerText {
  public:
    /// `font` is a host file; `size` in pixels.
    PeerText(const std::string& font, int size);
    PeerText(const PeerText&) = delete;
    PeerText& operator=(const PeerText&) = delete;
    ~PeerText();

    void Draw(const wchar_t* text, pixman_image_t* target, int x, int y);

  private:
    struct Glyph {
        const void* cached = nullptr;
        int advance = 0;
    };
    Glyph& Find(wchar_t character);

    FT_Library library_ = nullptr;
    FT_Face face_ = nullptr;
    int ascent_ = 0;
    pixman_glyph_cache_t* cache_;
    pixman_image_t* color_;
    std::map<wchar_t, Glyph> glyphs_;
    std::vector<pixman_glyph_t> line_;
};

}  // namespace korvane::bench
