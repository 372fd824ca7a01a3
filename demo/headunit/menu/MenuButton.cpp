#include "demo/headunit/menu/MenuButton.h"

#include "demo/headunit/ButtonLooks.h"
#include "demo/headunit/Captions.h"

namespace korvane::demo {

void MenuButton::Place() {
    Create(20, 430, 136, 46);
    SetButtonLooks(*this, 0, L"Menu");
    // The button owns its elements.
    auto* caption = new CLQTextElement;
    caption->SetFontSize(20, 20);
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
