#include "demo/headunit/SourcesButton.h"

#include "demo/headunit/Captions.h"

namespace korvane::demo {

void SourcesButton::Place(int x, int y) {
    Create(x, y, 136, 104);
    SetImagePath(0, eImage_Normal, L"Sources_n.lqi");
    SetImagePath(0, eImage_Pressed, L"Sources_p.lqi");
    SetImagePath(0, eImage_Focus, L"Sources_f.lqi");
    SetImagePath(0, eImage_Disabled, L"Sources_d.lqi");
    // The button owns its elements.
    auto* caption = new CLQTextElement;
    caption->SetFontSize(22, 22);
    caption->SetRect(6, 62, 124, 30);
    AddGUIElement(caption);
    SetLangID(kCaptionSources);
    EnableFocus(true);
}

}  // namespace korvane::demo
