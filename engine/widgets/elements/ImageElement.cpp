#include "engine/widgets/elements/ImageElement.h"

#include "engine/widgets/layout/LayoutArchive.h"

CLQImageElement::CLQImageElement() : CLQGUIElement(eGUIElement_Image) {}

CLQImageElement::CLQImageElement(const CLQImageElement& other) = default;

CLQImageElement::~CLQImageElement() = default;

void CLQImageElement::Draw(CLQSurfHandle& target, int state) {
    korvane::NamedImage* image = &m_images[eImage_Normal];
    if (state > eImage_Normal && state < kStateCount && m_images[state].Surface().GetSurface())
        image = &m_images[state];
    const _LQRect rect = ScreenRect();
    target.BitBlt(image->Surface(), rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top, 0,
                  0);
}

CLQGUIElement* CLQImageElement::Clone() const {
    return new CLQImageElement(*this);
}

bool CLQImageElement::SetImage(int index, const wchar_t* file) {
    if (index < 0 || index >= kStateCount || !file)
        return false;
    if (m_images[index].SetFile(file))
        Invalidate();
    return true;
}

void CLQImageElement::ExchangeLayout(korvane::LayoutArchive& archive) {
    CLQGUIElement::ExchangeLayout(archive);
    static const wchar_t* const kKeys[kStateCount] = {L"normal", L"pressed", L"focus", L"disabled"};
    for (int state = 0; state < kStateCount; ++state) {
        archive.Text(kKeys[state], m_images[state].File(),
                     [this, state](const std::wstring& file) { SetImage(state, file.c_str()); });
    }
}
