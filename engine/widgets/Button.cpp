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
    if (!element || GetGUIElementCount() >= kMaxElements)
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

CLQGUIElement* CLQButton::GetGUIElement(int index) const {
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
    if (!caption && GetGUIElementCount() < kMaxElements) {
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

_eImageType CLQButton::Look() const {
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

void CLQButton::ExchangeLayout(korvane::LayoutArchive& archive) {
    CLQBaseCtrl::ExchangeLayout(archive);
    static const std::wstring kImage = L"image";
    static const std::wstring kText = L"text";
    int count = GetGUIElementCount();
    archive.Number(L"elements", count, [&count](int stored) { count = std::clamp(stored, 1, kMaxElements); });
    for (int i = 0; i < (archive.IsLoading() ? kMaxElements : count); ++i) {
        archive.SetPrefix(L"element" + std::to_wstring(i) + L".");
        const bool isText =
            i < GetGUIElementCount() && m_elements[i]->GetGUIElementType() == eGUIElement_Text;
        archive.Text(L"type", isText ? kText : kImage, [this, i, isText](const std::wstring& type) {
            if (i < GetGUIElementCount() && (type == kText) == isText)
                return;
            std::unique_ptr<CLQGUIElement> element;
            if (type == kText)
                element = std::make_unique<CLQTextElement>();
            else
                element = std::make_unique<CLQImageElement>();
            Append(std::move(element));
            // The new one takes the place of the element of the other type.
            if (i + 1 < GetGUIElementCount()) {
                std::swap(m_elements[i], m_elements.back());
                m_elements.pop_back();
            }
        });
        if (i >= GetGUIElementCount())
            break;
        m_elements[i]->ExchangeLayout(archive);
    }
    archive.SetPrefix(std::wstring());
    if (archive.IsLoading() && GetGUIElementCount() > count)
        m_elements.resize(count);
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
