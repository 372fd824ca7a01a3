#include "demo/headunit/menu/MenuButton.h"

#include "demo/headunit/Captions.h"

namespace korvane::demo {

void MenuButton::Place() {
    Create(20, 430, 136, 46);
    SetImagePath(0, eImage_Normal, L"Menu_n.lqi");
    SetImagePath(0, eImage_Pressed, L"Menu_p.lqi");
    SetImagePath(0, eImage_Focus, L"Menu_f.lqi");
    SetImagePath(0, eImage_Disabled, L"Menu_d.lqi");
    // The button owns its elements.
    auto* caption = new CLQTextElement;
    caption->SetFontSize(22, 22);
    caption->SetRect(44, 6, 86, 32);
    AddGUIElement(caption);
    SetLangID(kCaptionMenu);
    EnableFocus(true);
    AddCallBack(kEventReleased, this, &MenuButton::OnReleased);
}

void MenuButton::OnReleased() {
    if (onTouched_)
        onTouched_();
}

}  // namespace korvane::demo
