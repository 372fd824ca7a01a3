#pragma once

#include <string>

#include "engine/draw/Surface.h"

class CLQFont;

namespace korvane {

class LayoutArchive;

/// Width and height in pixels.
struct TextExtent {
    int width = 0;
    int height = 0;
};

/// Where a text of this extent lies in the area by an _eTextStyle sum: its top-left corner is returned in `x`
/// and `y`. Flags that exclude each other count as centred, unknown ones not at all. A text that is too wide
/// starts at the left edge whatever its style, so that its beginning can be read.
void PlaceText(const _LQRect& area, const TextExtent& extent, int style, int& x, int& y);

/// One line of text and how it is written. The setters return whether they changed anything.
class TextLine {
  public:
    bool SetText(const wchar_t* text);
    bool SetFont(CLQFont* font);
    bool SetFontName(const wchar_t* face);
    bool SetFontSize(int width, int height);
    bool SetStyle(int style);

    std::wstring& Text() { return text_; }
    const std::wstring& Text() const { return text_; }
    int Style() const { return style_; }

    /// 0 by 0 for an empty text.
    TextExtent Measure();
    /// Draws the text, which has that extent, `shift` pixels to the right of its place in the area, and
    /// nothing outside the area.
    void Draw(CLQSurfHandle& target, const _LQRect& area, const TextExtent& extent, int shift,
              const _LQColor& color);

    /// Everything but the text itself.
    void ExchangeLooks(LayoutArchive& archive);

  private:
    CLQFont* SizedFont();

    std::wstring text_;
    CLQFont* font_ = nullptr;
    std::wstring face_;
    int fontWidth_ = 20;
    int fontHeight_ = 20;
    int style_ = 0;
};

}  // namespace korvane
