#include "demo/headunit/files/FittedName.h"

#include "KorvaneEx.h"

namespace korvane::demo {

namespace {

constexpr wchar_t kEllipsis = L'\u2026';

/// Whether the name may not be cut here, since that would leave half a character.
bool IsInsideCharacter(const std::wstring& name, std::size_t at) {
    return at < name.size() && name[at] >= 0xDC00 && name[at] <= 0xDFFF;
}

std::wstring Cut(const std::wstring& name, std::size_t length) {
    while (length > 0 && (IsInsideCharacter(name, length) || name[length - 1] == L' '))
        --length;
    return name.substr(0, length) + kEllipsis;
}

}  // namespace

std::wstring FittedName(const std::wstring& name, int textSize, int width) {
    CLQFont* const font = CLQFontManager::GetInstance()->GetFont(L"msyh");
    font->SetFontSize(textSize, textSize);
    if (font->GetStringWidth(name.c_str(), false) <= width)
        return name;
    std::size_t fits = 0;
    std::size_t tooLong = name.size();
    while (tooLong - fits > 1) {
        const std::size_t middle = fits + (tooLong - fits) / 2;
        if (font->GetStringWidth(Cut(name, middle).c_str(), false) <= width)
            fits = middle;
        else
            tooLong = middle;
    }
    return Cut(name, fits);
}

}  // namespace korvane::demo
