#include "engine/widgets/Button.h"

#include <algorithm>
#include <string>

#include "engine/core/Message.h"
#include "engine/system/System.h"
#include "engine/widgets/elements/ImageElement.h"
#include "engine/widgets/elements/TextElement.h"
#include "engine/widgets/layout/CtrlStorage.h"

CLQButton::CLQButton() {
    m_nKind = korvane::kKindButton;
    m_bFocusEnabled = true;
    Append(std::make_unique<CLQImageElement>());
}

CLQButton::CLQButton(const CLQButton& other) : CLQBaseCtrl(other) {
    for (const auto& element : other.m_elements)
        Append(std::unique_ptr<CLQGUIElement>(element->Clone()));
}

CLQButton& CLQButton::operator=(const CLQButton& other) {
    if (this == &other)
        return *this;
    CLQBaseCtrl::operator=(other);
    m_elements.clear();
    for (const auto& element : other.m_elements)
        Append(std::unique_ptr<CLQGUIElement>(element->Clone()));
    return *this;
}

CLQButton::~CLQButton() = default;

CLQBaseCtrl* CLQButton::Clone() {
    return new CLQButton(*this);
}

void CLQButton::Append(std::unique_ptr<CLQGUIElement> element) {
    element->SetFatherCtrl(this);
    m_elements.push_back(std::move(element));
}

bool CLQButton::SetImagePath(int element, _eImageType state, const wchar_t* file) {
    auto* image = dynamic_cast<CLQImageElement*>(GetGUIElement(element));
    return image && image->SetImage(state, file);
}

bool CLQButton::AddGUIElement(CLQGUIElement* element) {
    if (!element || GetGUIElementCount() >= korvane::kMaxButtonElements)
        return false;
    const CLQBaseCtrl* father = element->GetFatherCtrl();
    if (father && father != this)
        return false;
    for (const auto& own : m_elements) {
        if (own.get() == element)
            return false;
    }
    Append(std::unique_ptr<CLQGUIElement>(element));
    Invalidate();
    return true;
}

CLQGUIElement* CLQButton::GetGUIElement(int index) {
    return index >= 0 && index < GetGUIElementCount() ? m_elements[index].get() : nullptr;
}

int CLQButton::GetGUIElementCount() const {
    return static_cast<int>(m_elements.size());
}

CLQTextElement* CLQButton::FindCaption() const {
    for (const auto& element : m_elements) {
        if (auto* text = dynamic_cast<CLQTextElement*>(element.get()))
            return text;
    }
    return nullptr;
}

CLQTextElement* CLQButton::Caption() {
    CLQTextElement* caption = FindCaption();
    if (!caption && GetGUIElementCount() < korvane::kMaxButtonElements) {
        auto added = std::make_unique<CLQTextElement>();
        caption = added.get();
        Append(std::move(added));
        Invalidate();
    }
    return caption;
}

void CLQButton::SetText(const wchar_t* text) {
    if (CLQTextElement* caption = Caption())
        caption->SetText(text);
}

void CLQButton::SetLangID(int id) {
    CLQBaseCtrl::SetLangID(id);
    if (CLQTextElement* caption = id == 0 ? FindCaption() : Caption())
        caption->SetLangID(id);
}

void CLQButton::ChangeLanguage() {
    CLQBaseCtrl::ChangeLanguage();
    for (const auto& element : m_elements)
        element->ChangeLanguage();
}

bool CLQButton::DoMessage(_LQMessage* msg) {
    if (!msg)
        return false;
    switch (msg->code) {
        case korvane::kMsgPress:
            if (!m_bEnabled || !CheckPoint(msg->x, msg->y))
                return false;
            m_nPress = 1;
            Invalidate();
            return true;
        case korvane::kMsgMove:
            return m_nPress == 1;
        case korvane::kMsgRelease:
            if (m_nPress != 1)
                return false;
            m_nPress = 0;
            Invalidate();
            FireEvent(korvane::kEventReleased);
            return true;
        default:
            return false;
    }
}

_eImageType CLQButton::Look() {
    if (!m_bEnabled)
        return eImage_Disabled;
    if (m_nPress == 1)
        return eImage_Pressed;
    return IsFocus() && IsCursorState() ? eImage_Focus : eImage_Normal;
}

void CLQButton::Draw(CLQSurfHandle& target) {
    if (m_pOwnerWnd && !IsNeedRedraw())
        return;
    const _eImageType look = Look();
    for (const auto& element : m_elements)
        element->Draw(target, look);
    if (m_pOwnerWnd)
        Redraw(false);
}

/// Makes the element at that place, or behind the last one, a new one of the type unless it is of that type.
void CLQButton::PlaceElement(int index, bool isText) {
    std::unique_ptr<CLQGUIElement> element;
    if (isText)
        element = std::make_unique<CLQTextElement>();
    else
        element = std::make_unique<CLQImageElement>();
    element->SetFatherCtrl(this);
    if (index >= GetGUIElementCount())
        m_elements.push_back(std::move(element));
    else if (m_elements[index]->GetGUIElementType() != element->GetGUIElementType())
        m_elements[index] = std::move(element);
}

void CLQButton::ExchangeLayout(korvane::LayoutArchive& archive) {
    CLQBaseCtrl::ExchangeLayout(archive);
    static const std::wstring kImage = L"image";
    static const std::wstring kText = L"text";
    int limit = korvane::kMaxButtonElements;
    archive.Number(L"elements", GetGUIElementCount(), [&limit](int count) {
        // The first element is always there.
        limit = std::clamp(count, 1, korvane::kMaxButtonElements);
    });
    const int count = archive.IsLoading() ? limit : GetGUIElementCount();
    for (int i = 0; i < count; ++i) {
        archive.SetPrefix(L"element" + std::to_wstring(i) + L".");
        CLQGUIElement* element = GetGUIElement(i);
        const bool isText = element && element->GetGUIElementType() == eGUIElement_Text;
        archive.Text(L"type", isText ? kText : kImage,
                     [this, i](const std::wstring& type) { PlaceElement(i, type == kText); });
        if (i >= GetGUIElementCount())
            break;
        m_elements[i]->ExchangeLayout(archive);
    }
    archive.SetPrefix(std::wstring());
    if (GetGUIElementCount() > limit)
        m_elements.resize(limit);
}

bool CLQButton::LoadCtrlFromIni(CLQIniReadWrite& ini, const wchar_t* section) {
    return korvane::LoadFromIni(ini, section, m_nKind, [this](auto& archive) { ExchangeLayout(archive); });
}

bool CLQButton::LoadCtrlFromBin(CLQMemBlob& blob, int index) {
    return korvane::LoadFromBlob(blob, index, m_nKind, [this](auto& archive) { ExchangeLayout(archive); });
}

bool CLQButton::SaveCtrlToIni(CLQIniReadWrite& ini, const wchar_t* section) {
    return korvane::SaveToIni(ini, section, m_nKind, [this](auto& archive) { ExchangeLayout(archive); });
}

bool CLQButton::SaveCtrlToBin(CLQMemBlob& blob, int index) {
    return korvane::SaveToBlob(blob, index, m_nKind, [this](auto& archive) { ExchangeLayout(archive); });
}
