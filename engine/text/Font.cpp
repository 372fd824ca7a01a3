#include "engine/text/Font.h"

#include <algorithm>
#include <utility>

#include "engine/text/FontFace.h"
#include "engine/text/TextEngine.h"

CLQFont::CLQFont(std::unique_ptr<korvane::FontFace> face) : m_pFace(std::move(face)) {}

CLQFont::~CLQFont() = default;

void CLQFont::SetFontSize(int width, int height) {
    m_pFace->SetSize(
        {std::clamp(width, 1, korvane::kMaxFontSize), std::clamp(height, 1, korvane::kMaxFontSize)});
}

void CLQFont::GetFontSize(int& width, int& height) const {
    width = m_pFace->Size().width;
    height = m_pFace->Size().height;
}

int CLQFont::GetStringWidth(const wchar_t* text, bool) {
    return text == nullptr ? 0 : m_pFace->Engine().Measure(text, m_pFace->Id(), m_pFace->Size());
}

void CLQFont::GetStringSize(const wchar_t* text, int& width, int& height, bool) {
    width = GetStringWidth(text, false);
    height = m_pFace->Size().height;
}
