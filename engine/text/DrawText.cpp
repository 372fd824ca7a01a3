#include <algorithm>
#include <climits>
#include <cstdint>

#include "engine/draw/PixelFormat.h"
#include "engine/draw/Surface.h"
#include "engine/draw/SurfaceState.h"
#include "engine/text/Font.h"
#include "engine/text/FontFace.h"
#include "engine/text/TextEngine.h"

namespace {

constexpr int kEndsAtX = 1;

int ToCoordinate(std::int64_t value) {
    return static_cast<int>(std::clamp<std::int64_t>(value, INT_MIN, INT_MAX));
}

/// Draws masks whose positions count from the start of the text's baseline.
class InkPainter {
  public:
    InkPainter(korvane::SurfaceState& surface, std::int64_t startX, std::int64_t baseline,
               korvane::kernels::Pixel color, const _LQRect& bounds)
        : surface_(surface), startX_(startX), baseline_(baseline), color_(color), bounds_(bounds) {}

    void Paint(const korvane::GlyphMask& mask, int penX, int penY) {
        const std::int64_t x = startX_ + penX + mask.left;
        const std::int64_t y = baseline_ + penY + mask.top;
        const std::int64_t left = std::max<std::int64_t>(x, bounds_.left);
        const std::int64_t top = std::max<std::int64_t>(y, bounds_.top);
        const std::int64_t right = std::min<std::int64_t>(x + mask.width, bounds_.right);
        const std::int64_t bottom = std::min<std::int64_t>(y + mask.height, bounds_.bottom);
        if (left < right && top < bottom) {
            const std::uint8_t* coverage = mask.Row(static_cast<int>(top - y)) + (left - x);
            korvane::BlendMask(surface_, coverage, mask.stride, static_cast<int>(left), static_cast<int>(top),
                               static_cast<int>(right - left), static_cast<int>(bottom - top), color_);
        }
    }

  private:
    korvane::SurfaceState& surface_;
    std::int64_t startX_;
    std::int64_t baseline_;
    korvane::kernels::Pixel color_;
    const _LQRect& bounds_;
};

}  // namespace

bool CLQSurfHandle::DrawTextW(const wchar_t* text, CLQFont* font, int x, int y, int style, _LQColor& color,
                              _LQRect* clip, int width) {
    if (text == nullptr || font == nullptr || !m_pSurface)
        return false;
    const korvane::FontFace& face = font->Face();
    korvane::TextEngine& engine = face.Engine();
    const korvane::LaidOutLine line = engine.LayOut(text, face.Id(), face.Size());
    const std::int64_t start = style == kEndsAtX ? std::int64_t{x} - line.width : x;
    const std::int64_t baseline = std::int64_t{y} + engine.Ascent(face.Id(), face.Size());

    _LQRect bounds = m_pSurface->GetClip();
    if (clip != nullptr) {
        bounds.left = std::max(bounds.left, clip->left);
        bounds.right = std::min(bounds.right, clip->right);
        bounds.top = std::max(bounds.top, clip->top);
        bounds.bottom = std::min(bounds.bottom, clip->bottom);
    }
    if (width > 0)
        bounds.right = std::min(bounds.right, ToCoordinate(start + width));
    if (bounds.left >= bounds.right || bounds.top >= bounds.bottom || color.a == 0)
        return true;

    InkPainter painter(m_pSurface->State(), start, baseline, korvane::Premultiply(color), bounds);
    if (line.mask != nullptr) {
        painter.Paint(*line.mask, 0, 0);
        return true;
    }
    for (std::size_t i = 0; i < line.glyphCount; ++i) {
        const korvane::PlacedGlyph& placed = line.glyphs[i];
        painter.Paint(engine.Glyph(placed, face.Size()), placed.x, placed.y);
    }
    return true;
}
