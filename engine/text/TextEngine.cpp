#include "engine/text/TextEngine.h"

#include <cmath>
#include <string_view>

namespace korvane {

namespace {

constexpr double kDescentShareOfBoxes = 0.2;

std::wstring_view Line(const wchar_t* text) {
    std::size_t length = 0;
    while (length < kMaxTextLength && text[length] != L'\0')
        ++length;
    return {text, length};
}

}  // namespace

int TextEngine::Measure(const wchar_t* text, FaceId face, PixelSize size) {
    int width = 0;
    if (numbers_.Measure(text, face, size, width))
        return width;
    return runs_.Get(Line(text), face, size).width;
}

LaidOutLine TextEngine::LayOut(const wchar_t* text, FaceId face, PixelSize size) {
    LaidOutLine line;
    if (const GlyphMask* number = numbers_.Join(text, face, size, line.width)) {
        line.mask = number;
        return line;
    }
    const TextRun& run = runs_.GetForDrawing(Line(text), face, size);
    line.width = run.width;
    if (run.ink == TextRun::Ink::Joined) {
        line.mask = &run.mask;
    } else {
        line.glyphs = run.glyphs.data();
        line.glyphCount = run.glyphs.size();
    }
    return line;
}

int TextEngine::Ascent(FaceId face, PixelSize size) {
    const Typeface* typeface = fonts_.Open(face);
    const double share = typeface == nullptr ? kDescentShareOfBoxes : typeface->DescentShare();
    // Descenders fill the whole descent while the ascent has room to spare: the descent is rounded up.
    return size.height - static_cast<int>(std::ceil(size.height * share));
}

}  // namespace korvane
