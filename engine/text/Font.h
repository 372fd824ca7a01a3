#pragma once

#include <memory>

#include "platform/Export.h"

namespace korvane {
class FontFace;
}

/// A font face with a current size. Owned by CLQFontManager and shared by everybody who asked for it: a
/// control sets the size that it needs right before each measurement or drawing.
///
/// Text is one line: control characters and line breaks count as spaces, and what lies beyond the first 4096
/// characters is ignored.
class KORVANE_API CLQFont {
  public:
    /// Width and height of the em square in pixels, 1 to 512; values outside are clamped. A new font has 16
    /// by 16.
    void SetFontSize(int width, int height);
    void GetFontSize(int& width, int& height) const;

    /// Width in pixels of one line of text at the current size; 0 for a null text. Callers pass false.
    int GetStringWidth(const wchar_t* text, bool);
    /// Width of the text and height of a line, in pixels. A line is as high as the font; stacked accents may
    /// rise above it.
    void GetStringSize(const wchar_t* text, int& width, int& height, bool);

    korvane::FontFace& Face() { return *m_pFace; }

  private:
    friend class CLQFontManager;
    explicit CLQFont(std::unique_ptr<korvane::FontFace> face);
    ~CLQFont();
    CLQFont(const CLQFont&) = delete;
    CLQFont& operator=(const CLQFont&) = delete;

    std::unique_ptr<korvane::FontFace> m_pFace;
};
