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
};

/// In the order of MenuItem.
constexpr Entry kEntries[] = {
    {{L"menu_radio_%d.lqi", 8}, kCaptionRadio},  {{L"menu_media_%d.lqi", 8}, kCaptionMedia},
    {{L"menu_sources.lqi", 1}, kCaptionSources}, {{L"menu_gauges_%d.lqi", 8}, kCaptionGauges},
    {{L"menu_files.lqi", 1}, kCaptionFiles},     {{L"menu_settings.lqi", 1}, kCaptionSettings},
};

}  // namespace

bool MenuScreen::OnInit() {
    SetBkgSurf(L"SourceBkg.lqi");
    for (std::size_t i = 0; i < kMenuItems; ++i) {
        const Entry& entry = kEntries[i];
        MenuTile& tile = tiles_[i];
        tile.SetUp(entry.picture, entry.caption);
        tile.AddCallBack(kEventLongPress, this, &MenuScreen::OnLongPress);
        AddChild(&tile);
    }
    order_.Load();
    PlaceTiles();
    return true;
}

void MenuScreen::PlaceTiles() {
    for (std::size_t place = 0; place < kMenuItems; ++place) {
        const int column = static_cast<int>(place) % kColumns;
        const int row = static_cast<int>(place) / kColumns;
        TileOf(order_.At(place)).MoveTo(kLeft + kColumnWidth * column, kTop + kRowHeight * row);
    }
}

void MenuScreen::SetShow(bool show) {
    CLQWindow::SetShow(show);
    if (!show)
        EndRearranging();
    for (MenuTile& tile : tiles_)
        tile.Play(show);
}

bool MenuScreen::DoCommand(_LQMessage* msg) {
    for (std::size_t i = 0; i < kMenuItems; ++i) {
        MenuTile& tile = tiles_[i];
        if (msg->source != &tile)
            continue;
        // The release that ends a long press comes as a command, too.
        if (!tile.HasResponseLongPress())
            OnTouched(static_cast<MenuItem>(i));
        return true;
    }
    return false;
}

void MenuScreen::OnTouched(MenuItem item) {
    if (!isRearranging_) {
        if (onChosen_)
            onChosen_(item);
        return;
    }
    if (!inHand_) {
        TakeInHand(item);
    } else {
        order_.Move(*inHand_, order_.PlaceOf(item));
        PlaceTiles();
        PutDown();
    }
    TellRearranged();
}

void MenuScreen::OnLongPress(MenuTile* tile) {
    if (isRearranging_) {
        EndRearranging();
        return;
    }
    BeginRearranging();
    TakeInHand(static_cast<MenuItem>(tile - tiles_.data()));
    TellRearranged();
}

void MenuScreen::BeginRearranging() {
    isRearranging_ = true;
    for (MenuTile& tile : tiles_)
        tile.ShowHandle(true);
}

void MenuScreen::EndRearranging() {
    if (!isRearranging_)
        return;
    isRearranging_ = false;
    PutDown();
    for (MenuTile& tile : tiles_)
        tile.ShowHandle(false);
    TellRearranged();
}

void MenuScreen::TakeInHand(MenuItem item) {
    inHand_ = item;
    TileOf(item).ShowInHand(true);
}

void MenuScreen::PutDown() {
    if (inHand_)
        TileOf(*inHand_).ShowInHand(false);
    inHand_.reset();
}

void MenuScreen::TellRearranged() {
    if (onRearranged_)
        onRearranged_();
}

void MenuScreen::ShowPresence(MenuItem item, bool isThere) {
    TileOf(item).ShowDimmed(!isThere);
}

void MenuScreen::MarkPlaying(MenuItem item, bool isPlaying) {
    TileOf(item).EnableCurSource(isPlaying);
}

}  // namespace korvane::demo
