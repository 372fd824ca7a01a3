#include "demo/headunit/sources/SourcesScreen.h"

#include <algorithm>
#include <iterator>

#include "demo/headunit/Captions.h"
#include "demo/headunit/Label.h"
#include "demo/headunit/Source.h"

namespace korvane::demo {

namespace {

constexpr int kNone = -1;
constexpr int kCellsOfPage = 5;

/// The values are those of the sources.
constexpr ListCell kCells[] = {
    {kRadioSource, kCaptionTuner, L"switch_tuner"},
    {37, kCaptionDab, L"switch_dab"},
    {4, kCaptionDiscAudio, L"switch_disc_audio"},
    {kUsbMusicSource, kCaptionUsbAudio, L"switch_usb_audio"},
    {ListCell::kSwitchesPages, kCaptionMore, L"switch_page_down"},
    {8, kCaptionIpodAudio, L"switch_ipod_audio"},
    {11, kCaptionBtAudio, L"switch_bt_audio"},
    {13, kCaptionAux1, L"switch_aux1"},
    {18, kCaptionTv, L"switch_tv"},
    {ListCell::kSwitchesPages, kCaptionMore, L"switch_page_up"},
};

int CellOf(int source) {
    const ListCell* const found =
        std::find_if(std::begin(kCells), std::end(kCells),
                     [source](const ListCell& cell) { return cell.value == source; });
    return found == std::end(kCells) ? kNone : static_cast<int>(found - std::begin(kCells));
}

}  // namespace

SourcesScreen* SourcesScreen::instance_ = nullptr;

SourcesScreen::SourcesScreen() {
    instance_ = this;
}

SourcesScreen::~SourcesScreen() {
    instance_ = nullptr;
}

bool SourcesScreen::Create(int x, int y, int width, int height) {
    top_ = y;
    return CLQWindow::Create(x, 0, width, y + height);
}

bool SourcesScreen::OnInit() {
    background_.Create(0, top_, 800, 480);
    background_.SetImagePath(L"SourceBkg.lqi");
    AddChild(&background_);
    CreateList();
    CreatePicture();
    return true;
}

void SourcesScreen::CreateList() {
    list_.Create(60, top_ + 70, 240, 400);
    list_.SetBkgSurf(L"SwitchBkg.lqi");
    list_.SetIconNumPrePage(kCellsOfPage);
    looks_.GiveTo(list_, {std::begin(kCells), std::end(kCells)});
    list_.SetFontSize(17, 17);
    // The callback gets no context.
    list_.SetCallBackClick([](int cell, bool changed) {
        if (instance_)
            instance_->OnClick(cell, changed);
    });
    AddChild(&list_);
}

void SourcesScreen::CreatePicture() {
    picture_.Create(430, top_ + 100, 240, 240);
    AddChild(&picture_);

    PlaceLabel(name_, {330, 770, top_ + 350, top_ + 398}, 34, eText_HCenter);
    AddChild(&name_);

    PlaceLabel(hint_, {330, 770, top_ + 400, top_ + 436}, 22, eText_HCenter, LabelColor::Grey);
    AddChild(&hint_);
}

void SourcesScreen::SetShow(bool show) {
    CLQWindow::SetShow(show);
    if (show)
        list_.SetPageDown(playing_ >= kCellsOfPage);
}

void SourcesScreen::ShowSource(const Source& source, const _LQSysInfo* record) {
    playing_ = CellOf(source.id);
    list_.SetFouceIndex(playing_);
    picture_.SetImagePath(source.picture);
    name_.SetLangID(source.caption);
    hint_.SetLangID(source.HintFor(record));
}

void SourcesScreen::ShowPresence(const _LQSysInfo* record) {
    std::vector<bool> dimmed;
    for (const ListCell& cell : kCells) {
        const Source* const source = FindSource(cell.value);
        dimmed.push_back(source && !source->IsPresent(record));
    }
    if (dimmed == dimmed_)
        return;
    dimmed_ = dimmed;
    looks_.Dim(list_, dimmed_);
}

void SourcesScreen::OnClick(int cell, bool changed) {
    const int source = kCells[cell].value;
    if (source == ListCell::kSwitchesPages)
        return;
    // A click on the selected source has taken the selection away.
    if (!changed)
        list_.SetFouceIndex(playing_);
    if (onChosen_)
        onChosen_(source);
}

}  // namespace korvane::demo
