#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "engine/text/face/FontIndex.h"
#include "engine/text/face/PixelSize.h"
#include "engine/text/shape/TextItems.h"
#include "engine/text/shape/TextRun.h"

struct hb_buffer_t;

namespace korvane {

/// Turns one line of text into placed glyphs.
///
/// In scripts whose letters stand apart each character starts on a whole pixel and its advance is rounded to
/// whole pixels: a letter then looks the same wherever it stands, columns of digits line up, and widths add
/// up. In scripts whose letters join, such as Arabic, positions are kept to a quarter pixel.
class Shaper {
  public:
    explicit Shaper(FontIndex& index);
    ~Shaper();
    Shaper(const Shaper&) = delete;
    Shaper& operator=(const Shaper&) = delete;

    /// `text` has at most kMaxTextLength characters.
    TextRun Shape(std::wstring_view text, FaceId primary, PixelSize size);

  private:
    struct DestroyBuffer {
        void operator()(hb_buffer_t* buffer) const;
    };

    void AddBoxes(const std::vector<char32_t>& line, const TextItem& item, PixelSize size);
    void AddShaped(const std::vector<char32_t>& line, const TextItem& item, PixelSize size);
    void PlaceApart(const TextItem& item);
    void PlaceJoined(const TextItem& item);

    FontIndex& index_;
    std::unique_ptr<hb_buffer_t, DestroyBuffer> buffer_;
    std::vector<PlacedGlyph> glyphs_;
    std::int64_t pen_ = 0;  ///< whole pixels
};

}  // namespace korvane
