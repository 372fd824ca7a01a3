#include "tests/text/TextCanvas.h"

#include <algorithm>

#include "engine/draw/SurfManager.h"

#include "tests/support/Scene.h"

namespace korvane::test {

namespace {

constexpr int kX = 20;
constexpr int kY = 4;

}  // namespace

TextCanvas::TextCanvas(int width, int height, _eSurfaceType type)
    : surface_(CLQSurfManager::GetInstance()->CreateSurface(width, height, type, true)) {}

bool TextCanvas::Draw(const wchar_t* text, CLQFont* font, int x, int y, int style, _LQRect* clip, int width) {
    return surface_.DrawTextW(text, font, x, y, style, color_, clip, width);
}

std::vector<std::uint32_t> TextCanvas::Pixels() const {
    return test::PixelsOf(surface_);
}

Ink TextCanvas::FindInk() {
    const std::vector<std::uint32_t> pixels = Pixels();
    const int width = surface_.GetWidth();
    Ink ink{width, 0, surface_.GetHeight(), 0};
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        if (pixels[i] == 0)
            continue;
        const int x = static_cast<int>(i) % width;
        const int y = static_cast<int>(i) / width;
        ink.left = std::min(ink.left, x);
        ink.right = std::max(ink.right, x + 1);
        ink.top = std::min(ink.top, y);
        ink.bottom = std::max(ink.bottom, y + 1);
    }
    return ink.right == 0 ? Ink() : ink;
}

CLQFont* DefaultFont(int size) {
    CLQFont* font = CLQFontManager::GetInstance()->GetDefaultFont();
    font->SetFontSize(size, size);
    return font;
}

CLQFont* NamedFont(const wchar_t* name, int size) {
    CLQFont* font = CLQFontManager::GetInstance()->GetFont(name);
    font->SetFontSize(size, size);
    return font;
}

int Width(CLQFont* font, const wchar_t* text) {
    return font->GetStringWidth(text, false);
}

std::vector<std::uint32_t> PixelsOf(CLQFont* font, const wchar_t* text) {
    TextCanvas canvas;
    canvas.Draw(text, font, kX, kY);
    return canvas.Pixels();
}

Ink InkOf(CLQFont* font, const wchar_t* text) {
    TextCanvas canvas;
    canvas.Draw(text, font, kX, kY);
    Ink ink = canvas.FindInk();
    if (!ink.IsEmpty())
        ink = {ink.left - kX, ink.right - kX, ink.top - kY, ink.bottom - kY};
    return ink;
}

}  // namespace korvane::test
