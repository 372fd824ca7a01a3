#include "demo/headunit/radio/BandButton.h"

namespace korvane::demo {

void BandButton::Place(int x, int y) {
    Create(x, y, 136, 104);
    SetImagePath(0, eImage_Normal, L"BandNormal.lqi");
    SetImagePath(0, eImage_Pressed, L"BandPressed.lqi");
    SetImagePath(0, eImage_Focus, L"BandFocus.lqi");
    SetImagePath(0, eImage_Disabled, L"BandDisabled.lqi");
    // The button owns its elements.
    auto* caption = new CLQTextElement;
    caption->SetFontSize(44, 44);
    AddGUIElement(caption);
    EnableFocus(true);
}

}  // namespace korvane::demo
