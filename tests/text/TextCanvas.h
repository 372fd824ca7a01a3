#pragma once

#include <cstdint>
#include <vector>

#include "engine/draw/Surface.h"
#include "engine/text/FontManager.h"

namespace korvane::test {

/// Edges of what is not transparent; right and bottom lie outside it. All 0 when nothing is.
struct Ink {
    int left = 0;
    int right = 0;
    int top = 0;
    int bottom = 0;

    bool IsEmpty() const { return left == right; }
};

/// A transparent surface to draw white text on.
class TextCanvas {
  public:
    explicit TextCanvas(int width = 600, int height = 60, _eSurfaceType type = eSurface_ARGB8888);

    CLQSurfHandle& Surface() { return surface_; }
    /// Draws with style 0 and in white unless told otherwise.
    bool Draw(const wchar_t* text, CLQFont* font, int x, int y, int style = 0, _LQRect* clip = nullptr,
              int width = 0);
    void SetColor(_LQColor color) { color_ = color; }

    /// Of a 32-bit canvas.
    std::vector<std::uint32_t> Pixels() const;
    Ink FindInk();

  private:
    CLQSurfHandle surface_;
    _LQColor color_{255, 255, 255, 255};
};

/// The default font in that size.
CLQFont* DefaultFont(int size);
CLQFont* NamedFont(const wchar_t* name, int size);

int Width(CLQFont* font, const wchar_t* text);

/// The pixels of a text drawn at (20, 4).
std::vector<std::uint32_t> PixelsOf(CLQFont* font, const wchar_t* text);
/// The ink of a text drawn at the canvas's (20, 4), relative to that.
Ink InkOf(CLQFont* font, const wchar_t* text);

}  // namespace korvane::test
