#include "engine/widgets/elements/TextElement.h"

#include "engine/text/LangManager.h"
#include "engine/widgets/layout/LayoutArchive.h"

CLQTextElement::CLQTextElement() : CLQGUIElement(eGUIElement_Text) {
    m_line.SetStyle(eText_HCenter | eText_VCenter);
    m_colors.fill({255, 255, 255, 255});
    m_colors[eImage_Disabled] = {128, 128, 128, 255};
}

CLQTextElement::CLQTextElement(const CLQTextElement& other) = default;

CLQTextElement::~CLQTextElement() = default;

void CLQTextElement::Draw(CLQSurfHandle& target, int state) {
    const bool known = state >= 0 && state < kStateCount;
    m_line.Draw(target, ScreenRect(), m_line.Measure(), 0, m_colors[known ? state : eImage_Normal]);
}

CLQGUIElement* CLQTextElement::Clone() const {
    return new CLQTextElement(*this);
}

void CLQTextElement::ChangeLanguage() {
    if (m_nLangID != 0)
        SetText(CLQLangManager::GetInstance()->GetString(m_nLangID).c_str());
}

void CLQTextElement::SetText(const wchar_t* text) {
    if (m_line.SetText(text))
        Invalidate();
}

const std::wstring& CLQTextElement::GetText() const {
    return m_line.Text();
}

void CLQTextElement::SetLangID(int id) {
    m_nLangID = id;
    ChangeLanguage();
}

int CLQTextElement::GetLangID() {
    return m_nLangID;
}

void CLQTextElement::SetFont(CLQFont* font) {
    if (m_line.SetFont(font))
        Invalidate();
}

void CLQTextElement::SetFontName(const wchar_t* face) {
    if (m_line.SetFontName(face))
        Invalidate();
}

void CLQTextElement::SetFontSize(int width, int height) {
    if (m_line.SetFontSize(width, height))
        Invalidate();
}

void CLQTextElement::SetTextStyle(int style) {
    if (m_line.SetStyle(style))
        Invalidate();
}

void CLQTextElement::SetTextColor(_LQColor& color) {
    m_colors.fill(color);
    Invalidate();
}

void CLQTextElement::SetTextColor(_eImageType state, _LQColor& color) {
    const int index = state;
    if (index < 0 || index >= kStateCount)
        return;
    m_colors[index] = color;
    Invalidate();
}

void CLQTextElement::ExchangeLayout(korvane::LayoutArchive& archive) {
    CLQGUIElement::ExchangeLayout(archive);
    m_line.ExchangeLooks(archive);
    static const wchar_t* const kKeys[kStateCount] = {L"color", L"colorpressed", L"colorfocus",
                                                      L"colordisabled"};
    for (int state = 0; state < kStateCount; ++state) {
        archive.Color(kKeys[state], m_colors[state], [this, state](_LQColor color) {
            SetTextColor(static_cast<_eImageType>(state), color);
        });
    }
    archive.Number(L"langid", m_nLangID, [this](int id) { SetLangID(id); });
    // A text from the language table is not part of the layout.
    archive.Text(L"text", m_nLangID == 0 ? m_line.Text() : std::wstring(), [this](const std::wstring& text) {
        if (m_nLangID == 0)
            SetText(text.c_str());
    });
}
