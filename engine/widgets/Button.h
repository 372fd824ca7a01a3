#pragma once

#include <memory>
#include <vector>

#include "engine/widgets/elements/GUIElement.h"
#include "engine/window/BaseCtrl.h"

class CLQTextElement;

namespace korvane {

/// How many elements a button takes.
inline constexpr int kMaxButtonElements = 32;

}  // namespace korvane

/// A push button: a stack of elements, drawn in their order, of which the first is a picture.
///
/// It shows its disabled look while it is disabled, its pressed look while it is held, its focus look while
/// it has the focus in cursor mode, and its normal look otherwise. It fires 514 at the release that ends a
/// press, wherever the pointer is by then. A copy has copies of the elements.
class KORVANE_API CLQButton : public CLQBaseCtrl {
  public:
    CLQButton();
    CLQButton(const CLQButton& other);
    CLQButton& operator=(const CLQButton& other);
    ~CLQButton() override;

    bool DoMessage(_LQMessage* msg) override;
    void Draw(CLQSurfHandle& target) override;
    void ChangeLanguage() override;
    /// The language identifier of the caption, see `SetText`.
    void SetLangID(int id) override;
    CLQBaseCtrl* Clone() override;
    bool LoadCtrlFromIni(CLQIniReadWrite& ini, const wchar_t* section) override;
    bool LoadCtrlFromBin(CLQMemBlob& blob, int index) override;
    bool SaveCtrlToIni(CLQIniReadWrite& ini, const wchar_t* section) override;
    bool SaveCtrlToBin(CLQMemBlob& blob, int index) override;

    /// Sets the image of one state of the picture at that place; an empty name removes it. False, changing
    /// nothing, when there is no picture at that place, the state is none or the name is null.
    bool SetImagePath(int element, _eImageType state, const wchar_t* file);

    /// Puts an element on top of the others. The button owns it from then on. False, and the element stays
    /// the caller's, when it is null, belongs to another control or already to this one, or there are
    /// korvane::kMaxButtonElements.
    bool AddGUIElement(CLQGUIElement* element);
    /// Elements in drawing order; null outside 0 to count - 1. Element 0 is the picture that a new button
    /// has.
    CLQGUIElement* GetGUIElement(int index);
    int GetGUIElementCount() const;

    /// The text of the caption, which is the first text element; it is added when there is none.
    void SetText(const wchar_t* text);

  protected:
    void ExchangeLayout(korvane::LayoutArchive& archive);

  private:
    void Append(std::unique_ptr<CLQGUIElement> element);
    void PlaceElement(int index, bool isText);
    CLQTextElement* FindCaption() const;
    CLQTextElement* Caption();
    _eImageType Look();

    std::vector<std::unique_ptr<CLQGUIElement>> m_elements;
};
