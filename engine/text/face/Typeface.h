#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "engine/text/face/FontStream.h"
#include "engine/text/face/GlyphMask.h"
#include "engine/text/face/PixelSize.h"

struct FT_FaceRec_;
struct FT_LibraryRec_;
struct hb_font_t;

namespace korvane {

/// One scalable face of an open font file.
class Typeface {
  public:
    /// Null when the file or the face is missing, damaged, not scalable or without a Unicode character map.
    static std::unique_ptr<Typeface> Open(FT_LibraryRec_* library, const wchar_t* path, int faceIndex);
    ~Typeface();
    Typeface(const Typeface&) = delete;
    Typeface& operator=(const Typeface&) = delete;

    /// Faces in the file, at least 1.
    int FaceCount() const;
    std::wstring Family() const;
    std::wstring Style() const;
    /// Neither bold nor italic.
    bool IsRegular() const;

    /// Part of a line's height that lies below the baseline, 0 to 1.
    double DescentShare() const;

    bool HasGlyph(char32_t codePoint) const;

    /// The face for HarfBuzz at that size. Valid until the next call of a member function.
    hb_font_t* ShapingFont(PixelSize size);

    /// Phases of `Rasterise`: quarter pixels.
    static constexpr int kPhases = 4;
    /// The glyph, its pen moved right by `phase` quarter pixels. A damaged glyph comes out empty.
    GlyphMask Rasterise(std::uint32_t glyph, PixelSize size, int phase);

  private:
    Typeface(std::unique_ptr<FontStream> stream, FT_FaceRec_* face);
    void UseSize(PixelSize size);

    struct DoneFace {
        void operator()(FT_FaceRec_* face) const;
    };
    struct DestroyFont {
        void operator()(hb_font_t* font) const;
    };

    std::unique_ptr<FontStream> stream_;
    std::unique_ptr<FT_FaceRec_, DoneFace> face_;
    std::unique_ptr<hb_font_t, DestroyFont> font_;
    PixelSize size_;
};

}  // namespace korvane
