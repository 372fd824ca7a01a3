#include "demo/headunit/SourceScreen.h"

#include "demo/headunit/Source.h"

namespace korvane::demo {

bool SourceScreen::OnInit() {
    SetBkgSurf(L"SourceBkg.lqi");
    picture_.Create(280, 88, 240, 240);
    AddChild(&picture_);

    caption_.Create(100, 340, 600, 48);
    caption_.SetFontSize(34, 34);
    caption_.SetTextStyle(eText_HCenter | eText_VCenter);
    AddChild(&caption_);

    _LQColor grey = {159, 180, 208, 255};
    hint_.Create(100, 390, 600, 36);
    hint_.SetFontSize(22, 22);
    hint_.SetTextStyle(eText_HCenter | eText_VCenter);
    hint_.SetTextColor(grey);
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
