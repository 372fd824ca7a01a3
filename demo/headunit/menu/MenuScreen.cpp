#include "demo/headunit/menu/MenuScreen.h"

#include "demo/headunit/Captions.h"

namespace korvane::demo {

namespace {

constexpr int kColumns = 3;
constexpr int kLeft = 23;
constexpr int kTop = 76;
constexpr int kColumnWidth = 259;
constexpr int kRowHeight = 200;

struct Entry {
    MenuTile::Picture picture;
    int caption;
    bool isThere;
};

/// In the order of MenuItem.
constexpr Entry kEntries[] = {
    {{L"menu_radio_%d.lqi", 8}, kCaptionRadio, true},  {{L"menu_media_%d.lqi", 8}, kCaptionMedia, true},
    {{L"menu_sources.lqi", 1}, kCaptionSources, true}, {{L"menu_gauges_%d.lqi", 8}, kCaptionGauges, true},
    {{L"menu_files.lqi", 1}, kCaptionFiles, false},    {{L"menu_settings.lqi", 1}, kCaptionSettings, false},
};

}  // namespace

bool MenuScreen::OnInit() {
    SetBkgSurf(L"SourceBkg.lqi");
    for (std::size_t i = 0; i < kTiles; ++i) {
        const Entry& entry = kEntries[i];
        const int column = static_cast<int>(i) % kColumns;
        const int row = static_cast<int>(i) / kColumns;
        MenuTile& tile = tiles_[i];
        tile.SetUp(kLeft + kColumnWidth * column, kTop + kRowHeight * row, entry.picture, entry.caption);
        if (!entry.isThere)
            tile.DimOut();
        AddChild(&tile);
    }
    return true;
}

void MenuScreen::SetShow(bool show) {
    CLQWindow::SetShow(show);
    for (MenuTile& tile : tiles_)
        tile.Play(show);
}

bool MenuScreen::DoCommand(_LQMessage* msg) {
    for (std::size_t i = 0; i < kTiles; ++i) {
        MenuTile& tile = tiles_[i];
        if (msg->source != &tile)
            continue;
        // The release that ends a long press comes as a command, too.
        if (!tile.IsDesableState() && !tile.HasResponseLongPress() && onChosen_)
            onChosen_(static_cast<MenuItem>(i));
        return true;
    }
    return false;
}

void MenuScreen::MarkPlaying(MenuItem item, bool isPlaying) {
    TileOf(item).EnableCurSource(isPlaying);
}

}  // namespace korvane::demo
