#pragma once

#include <array>
#include <functional>
#include <string>
#include <utility>

#include "KorvaneEx.h"

#include "demo/headunit/menu/MenuItem.h"
#include "demo/headunit/menu/MenuTile.h"

namespace korvane::demo {

/// The menu: a tile for each of the head unit's screens. The pictures play while the menu is shown.
class MenuScreen : public CLQWindow {
  public:
    std::wstring GetDialogName() override { return L"Menu"; }
    bool OnInit() override;
    void SetShow(bool show) override;
    bool DoCommand(_LQMessage* msg) override;

    /// Called when a tile was touched that leads somewhere.
    void WhenChosen(std::function<void(MenuItem)> handler) { onChosen_ = std::move(handler); }
    /// Marks the tile of what is playing, if `isPlaying`, or takes its mark away.
    void MarkPlaying(MenuItem item, bool isPlaying);

  private:
    static constexpr std::size_t kTiles = 6;

    MenuTile& TileOf(MenuItem item) { return tiles_[static_cast<std::size_t>(item)]; }

    std::array<MenuTile, kTiles> tiles_;
    std::function<void(MenuItem)> onChosen_;
};

}  // namespace korvane::demo
