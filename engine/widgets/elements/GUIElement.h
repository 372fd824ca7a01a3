#pragma once

#include "engine/core/Life.h"
#include "engine/draw/Surface.h"

class CLQBaseCtrl;

namespace korvane {
class LayoutArchive;
}

/// Something drawn on a control, such as the picture or the caption of a button.
class KORVANE_API CLQGUIElement {
  public:
    virtual ~CLQGUIElement();

    /// Draws the look for a state, an _eImageType value; any other value is the normal state. Nothing is
    /// drawn outside the element's rectangle.
    virtual void Draw(CLQSurfHandle& target, int state) = 0;
    /// A copy created with `new` that has no father; the caller owns it.
    virtual CLQGUIElement* Clone() const = 0;
    /// Looks language texts up again.
    virtual void ChangeLanguage();
    /// Reads or writes what a layout keeps of the element.
    virtual void ExchangeLayout(korvane::LayoutArchive& archive);

    /// The control on which the element lies; borrowed. Null takes it off.
    void SetFatherCtrl(CLQBaseCtrl* ctrl);
    /// Null without a father and after the father's end.
    CLQBaseCtrl* GetFatherCtrl() const;
    _eGUIElementType GetGUIElementType();

    /// The element's rectangle, relative to the father's top-left corner. A width or height below 1 stands
    /// for the father's whole rectangle, which is also the rectangle of a new element.
    void SetRect(int x, int y, int width, int height);

  protected:
    explicit CLQGUIElement(_eGUIElementType type);
    /// A copy has no father.
    CLQGUIElement(const CLQGUIElement& other);
    CLQGUIElement& operator=(const CLQGUIElement& other) = delete;

    /// The rectangle in screen coordinates; empty when neither the element nor a father gives one.
    _LQRect ScreenRect();
    /// Has the father repainted.
    void Invalidate();

  private:
    _eGUIElementType m_eType;
    CLQBaseCtrl* m_pFatherCtrl = nullptr;
    korvane::LifeWatch m_fatherLife;
    int m_nX = 0;
    int m_nY = 0;
    int m_nWidth = 0;
    int m_nHeight = 0;
};
