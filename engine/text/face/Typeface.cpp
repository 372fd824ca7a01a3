#include "engine/text/face/Typeface.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <freetype/freetype.h>
#include <freetype/ftoutln.h>
#include <hb-ft.h>
#include <hb.h>

#include "platform/Unicode.h"

namespace korvane {

namespace {

/// Sets the strokes on whole rows and leaves widths and positions alone: sharp, and true to the shapes.
constexpr FT_Int32 kRasterFlags = FT_LOAD_TARGET_LIGHT | FT_LOAD_NO_BITMAP;

/// No honest glyph at the largest size is wider or taller; a damaged font could ask for gigabytes.
constexpr FT_Pos kMaxGlyphExtent = 4L * kMaxFontSize;

std::wstring Name(const char* name) {
    return name == nullptr ? std::wstring() : FromUtf8(name);
}

}  // namespace

std::unique_ptr<Typeface> Typeface::Open(FT_LibraryRec_* library, const wchar_t* path, int faceIndex) {
    std::unique_ptr<FontStream> stream = FontStream::Open(path);
    if (library == nullptr || !stream)
        return nullptr;
    FT_Open_Args arguments = {};
    arguments.flags = FT_OPEN_STREAM;
    arguments.stream = stream->Handle();
    FT_Face opened = nullptr;
    if (FT_Open_Face(library, &arguments, faceIndex, &opened) != 0)
        return nullptr;
    std::unique_ptr<Typeface> typeface(new Typeface(std::move(stream), opened));
    const bool usable = FT_IS_SCALABLE(opened) && FT_Select_Charmap(opened, FT_ENCODING_UNICODE) == 0;
    return usable ? std::move(typeface) : nullptr;
}

Typeface::Typeface(std::unique_ptr<FontStream> stream, FT_FaceRec_* face)
    : stream_(std::move(stream)), face_(face) {}

Typeface::~Typeface() = default;

void Typeface::DoneFace::operator()(FT_FaceRec_* face) const {
    FT_Done_Face(face);
}

void Typeface::DestroyFont::operator()(hb_font_t* font) const {
    hb_font_destroy(font);
}

int Typeface::FaceCount() const {
    return std::max(1, static_cast<int>(face_->num_faces));
}

std::wstring Typeface::Family() const {
    return Name(face_->family_name);
}

std::wstring Typeface::Style() const {
    return Name(face_->style_name);
}

bool Typeface::IsRegular() const {
    return (face_->style_flags & (FT_STYLE_FLAG_BOLD | FT_STYLE_FLAG_ITALIC)) == 0;
}

double Typeface::DescentShare() const {
    const double ascent = std::max<int>(0, face_->ascender);
    const double descent = std::max(0, -static_cast<int>(face_->descender));
    return ascent > 0 ? descent / (ascent + descent) : 0.2;
}

bool Typeface::HasGlyph(char32_t codePoint) const {
    return FT_Get_Char_Index(face_.get(), codePoint) != 0;
}

void Typeface::UseSize(PixelSize size) {
    if (size_ != size) {
        FT_Set_Pixel_Sizes(face_.get(), static_cast<FT_UInt>(size.width), static_cast<FT_UInt>(size.height));
        if (font_)
            hb_ft_font_changed(font_.get());
        size_ = size;
    }
}

hb_font_t* Typeface::ShapingFont(PixelSize size) {
    UseSize(size);
    if (!font_) {
        font_.reset(hb_ft_font_create(face_.get(), nullptr));
        hb_ft_font_set_load_flags(font_.get(), FT_LOAD_NO_HINTING);
    }
    return font_.get();
}

GlyphMask Typeface::Rasterise(std::uint32_t glyph, PixelSize size, int phase) {
    UseSize(size);
    GlyphMask mask;
    if (FT_Load_Glyph(face_.get(), glyph, kRasterFlags) != 0)
        return mask;
    const FT_GlyphSlot slot = face_->glyph;
    if (slot->format != FT_GLYPH_FORMAT_OUTLINE)
        return mask;
    FT_BBox box;
    FT_Outline_Get_CBox(&slot->outline, &box);
    const FT_Pos farthest = std::max(std::max(std::abs(box.xMin), std::abs(box.xMax)),
                                     std::max(std::abs(box.yMin), std::abs(box.yMax)));
    if (farthest > kMaxGlyphExtent * 64)
        return mask;
    FT_Outline_Translate(&slot->outline, FT_Pos{phase} * (64 / kPhases), 0);
    if (FT_Render_Glyph(slot, FT_RENDER_MODE_NORMAL) != 0 || slot->bitmap.pixel_mode != FT_PIXEL_MODE_GRAY)
        return mask;
    mask.left = slot->bitmap_left;
    mask.top = -slot->bitmap_top;
    mask.Clear(static_cast<int>(slot->bitmap.width), static_cast<int>(slot->bitmap.rows));
    for (int row = 0; row < mask.height && mask.width > 0; ++row)
        std::memcpy(mask.Row(row),
                    slot->bitmap.buffer + static_cast<std::ptrdiff_t>(row) * slot->bitmap.pitch,
                    slot->bitmap.width);
    return mask;
}

}  // namespace korvane
