#include "engine/text/FontManager.h"

#include <algorithm>
#include <string>
#include <vector>

#include "engine/text/FontFace.h"
#include "engine/text/TextEngine.h"
#include "platform/CaseFold.h"

struct CLQFontManager::Impl {
    struct DeleteFont {
        void operator()(CLQFont* font) const { delete font; }
    };
    using FontPointer = std::unique_ptr<CLQFont, DeleteFont>;
    struct NamedFont {
        std::wstring name;
        FontPointer font;
    };

    FontPointer MakeFont(korvane::FaceId face) {
        return FontPointer(new CLQFont(std::make_unique<korvane::FontFace>(engine, face)));
    }

    korvane::TextEngine engine;
    FontPointer defaultFont;
    std::vector<NamedFont> namedFonts;
};

CLQFontManager::CLQFontManager() : m_pImpl(std::make_unique<Impl>()) {}

CLQFontManager::~CLQFontManager() = default;

CLQFontManager* CLQFontManager::GetInstance() {
    static CLQFontManager instance;
    return &instance;
}

CLQFont* CLQFontManager::GetDefaultFont() {
    if (!m_pImpl->defaultFont)
        m_pImpl->defaultFont = m_pImpl->MakeFont(m_pImpl->engine.Fonts().DefaultFace());
    return m_pImpl->defaultFont.get();
}

CLQFont* CLQFontManager::GetFont(const wchar_t* face) {
    if (face == nullptr)
        return GetDefaultFont();
    std::vector<Impl::NamedFont>& fonts = m_pImpl->namedFonts;
    const auto known = std::find_if(fonts.begin(), fonts.end(), [face](const Impl::NamedFont& named) {
        return korvane::EqualFolded(named.name, face);
    });
    if (known != fonts.end())
        return known->font.get();
    const korvane::FaceId id = m_pImpl->engine.Fonts().FindFace(face);
    if (id == korvane::kNoFace)
        return GetDefaultFont();
    fonts.push_back({face, m_pImpl->MakeFont(id)});
    return fonts.back().font.get();
}
