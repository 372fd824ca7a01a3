#include "demo/headunit/SourceScreen.h"

#include "demo/headunit/Label.h"
#include "demo/headunit/Source.h"

namespace korvane::demo {

bool SourceScreen::OnInit() {
    SetBkgSurf(L"SourceBkg.lqi");
    picture_.Create(280, 88, 240, 240);
    AddChild(&picture_);

    PlaceLabel(caption_, {100, 700, 340, 388}, 34, eText_HCenter);
    AddChild(&caption_);

    PlaceLabel(hint_, {100, 700, 390, 426}, 22, eText_HCenter, LabelColor::Grey);
    AddChild(&hint_);

    sourcesButton_.Place(620, 172);
    AddChild(&sourcesButton_);
    menuButton_.Place();
    AddChild(&menuButton_);
    return true;
}

void SourceScreen::ShowSource(const Source& source, const _LQSysInfo* record) {
    picture_.SetImagePath(source.picture);
    caption_.SetLangID(source.caption);
    hint_.SetLangID(source.HintFor(record));
}

}  // namespace korvane::demo
