#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "KorvaneEx.h"

#include "demo/headunit/menu/MenuItem.h"
#include "demo/headunit/menu/MenuOrder.h"
#include "demo/headunit/menu/MenuTile.h"

namespace korvane::demo {

/// The menu: a tile for each of the head unit's screens. The pictures play while the menu is shown.
///
/// A long press on a tile takes it in hand, and the next touch puts it in the place of the tile that is
/// touched. Further tiles are moved by two touches each, until another long press.
class MenuScreen : public CLQWindow {
  public:
    std::wstring GetDialogName() override { return L"Menu"; }
    bool OnInit() override;
    void SetShow(bool show) override;
    bool DoCommand(_LQMessage* msg) override;

    /// Called when a tile was touched, also a dimmed one.
    void WhenChosen(std::function<void(MenuItem)> handler) { onChosen_ = std::move(handler); }
    /// Called at each step of rearranging the tiles, the first and the last ones included.
    void WhenRearranged(std::function<void()> handler) { onRearranged_ = std::move(handler); }

    /// Marks the tile of what is playing, if `isPlaying`, or takes its mark away.
    void MarkPlaying(MenuItem item, bool isPlaying);

    /// Dims the tile of what is not there.
    void ShowPresence(MenuItem item, bool isThere);

    bool IsRearranging() const { return isRearranging_; }
    /// Whether a tile is waiting for its new place.
    bool HasTileInHand() const { return inHand_.has_value(); }
    void EndRearranging();

  private:
    MenuTile& TileOf(MenuItem item) { return tiles_[static_cast<std::size_t>(item)]; }
    void PlaceTiles();
    void OnTouched(MenuItem item);
    void OnLongPress(MenuTile* tile);
    void BeginRearranging();
    void TakeInHand(MenuItem item);
    void PutDown();
    void TellRearranged();

    std::array<MenuTile, kMenuItems> tiles_;  // in the order of MenuItem
    MenuOrder order_;
    bool isRearranging_ = false;
    std::optional<MenuItem> inHand_;
    std::function<void(MenuItem)> onChosen_;
    std::function<void()> onRearranged_;
};

}  // namespace korvane::demo
