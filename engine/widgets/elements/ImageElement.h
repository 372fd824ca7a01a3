#pragma once

#include <array>

#include "engine/widgets/elements/GUIElement.h"
#include "engine/widgets/elements/NamedImage.h"

/// A picture with one image a state.
class KORVANE_API CLQImageElement : public CLQGUIElement {
  public:
    static constexpr int kStateCount = 4;

    CLQImageElement();
    CLQImageElement(const CLQImageElement& other);
    ~CLQImageElement() override;

    /// Draws the image of the state at the top-left corner of the rectangle; a state without an image shows
    /// the normal one.
    void Draw(CLQSurfHandle& target, int state) override;
    CLQGUIElement* Clone() const override;
    void ExchangeLayout(korvane::LayoutArchive& archive) override;

    /// Sets the image of a state by its _eImageType value; an empty name removes it. False, changing nothing,
    /// for an index outside 0 to 3 and for a null name.
    virtual bool SetImage(int index, const wchar_t* file);

  private:
    std::array<korvane::NamedImage, kStateCount> m_images;
};
