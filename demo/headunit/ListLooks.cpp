#include "demo/headunit/ListLooks.h"

#include <string>

namespace korvane::demo {

namespace {

struct Look {
    const wchar_t* ending;
    void (CLQSwitchList::*setIcons)(std::vector<CLQSurfHandle*>& icons);
    _eTextColorType type;
    _LQColor color;
};
/// Their places among the looks.
enum LookIndex : std::size_t { kNormal = 0, kDisabled = 3 };
constexpr Look kLooks[] = {
    {L"_n.lqi", &CLQSwitchList::SetIconNormalSurf, eTextColor_Normal, {230, 238, 250, 255}},
    {L"_p.lqi", &CLQSwitchList::SetIconActiveSurf, eTextColor_Active, {255, 255, 255, 255}},
    {L"_f.lqi", &CLQSwitchList::SetIconFocusSurf, eTextColor_Focus, {255, 181, 74, 255}},
    {L"_d.lqi", &CLQSwitchList::SetIconDisableSurf, eTextColor_Disable, {79, 95, 125, 255}},
};

}  // namespace

void ListLooks::GiveTo(CLQSwitchList& list, const std::vector<ListCell>& cells) {
    for (std::size_t i = 0; i < icons_.size(); ++i) {
        const Look& look = kLooks[i];
        icons_[i].clear();
        for (const ListCell& cell : cells) {
            const std::wstring file = std::wstring(cell.icon) + look.ending;
            icons_[i].push_back(CLQSurfManager::GetInstance()->CreateSurface(file.c_str(), true));
        }
        std::vector<CLQSurfHandle*> borrowed;
        for (CLQSurfHandle& icon : icons_[i])
            borrowed.push_back(&icon);
        (list.*look.setIcons)(borrowed);
        _LQColor color = look.color;
        list.SetTextColor(look.type, color);
    }
    std::vector<int> captions;
    for (const ListCell& cell : cells)
        captions.push_back(cell.caption);
    list.SetText(captions);
}

void ListLooks::Dim(CLQSwitchList& list, const std::vector<bool>& dimmed) {
    std::vector<CLQSurfHandle*> borrowed;
    for (std::size_t i = 0; i < icons_[kNormal].size(); ++i) {
        const bool isDimmed = i < dimmed.size() && dimmed[i];
        borrowed.push_back(&icons_[isDimmed ? kDisabled : kNormal][i]);
    }
    list.SetIconNormalSurf(borrowed);
    list.Invalidate();
}

}  // namespace korvane::demo
