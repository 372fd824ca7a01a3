#include "demo/headunit/SourcesButton.h"

#include "demo/headunit/ButtonLooks.h"
#include "demo/headunit/Captions.h"

namespace korvane::demo {

void SourcesButton::Place(int x, int y) {
    Create(x, y, 136, 104);
    SetButtonLooks(*this, 0, L"Sources");
    // The button owns its elements.
    auto* caption = new CLQTextElement;
    caption->SetFontSize(22, 22);
    caption->SetRect(6, 62, 124, 30);
    AddGUIElement(caption);
    SetLangID(kCaptionSources);
    EnableFocus(true);
}

}  // namespace korvane::demo
