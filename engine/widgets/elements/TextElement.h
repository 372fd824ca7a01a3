#pragma once

#include <array>
#include <string>

#include "engine/widgets/elements/GUIElement.h"
#include "engine/widgets/elements/TextLine.h"

/// A caption: a text of the language table, or a literal one. White and centred both ways unless told
/// otherwise.
class KORVANE_API CLQTextElement : public CLQGUIElement {
  public:
    CLQTextElement();
    CLQTextElement(const CLQTextElement& other);
    ~CLQTextElement() override;

    void Draw(CLQSurfHandle& target, int state) override;
    CLQGUIElement* Clone() const override;
    void ChangeLanguage() override;
    void ExchangeLayout(korvane::LayoutArchive& archive) override;

    /// Null counts as empty. The language identifier stays: unless it is 0, the next change of the language
    /// replaces the text.
    void SetText(const wchar_t* text);
    const std::wstring& GetText() const;
    /// Takes the text from the language table, at once and whenever the language changes. 0 leaves the text
    /// as it is.
    void SetLangID(int id);
    int GetLangID();

    /// Borrowed from the font manager; null is the default font.
    void SetFont(CLQFont* font);
    /// The face of that name; null or empty is the default font.
    void SetFontName(const wchar_t* face);
    /// Width and height of the em square in pixels.
    void SetFontSize(int width, int height);
    /// A sum of _eTextStyle flags.
    void SetTextStyle(int style);
    /// The colour of all states, or of one.
    void SetTextColor(_LQColor& color);
    void SetTextColor(_eImageType state, _LQColor& color);

  private:
    static constexpr int kStateCount = 4;

    korvane::TextLine m_line;
    std::array<_LQColor, kStateCount> m_colors;
    int m_nLangID = 0;
};
