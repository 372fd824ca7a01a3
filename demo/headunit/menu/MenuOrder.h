#pragma once

#include <array>
#include <cstddef>

#include "demo/headunit/menu/MenuItem.h"

namespace korvane::demo {

/// The order in which the menu shows its tiles. The user's own lasts across restarts.
class MenuOrder {
  public:
    /// Takes the order that was kept. One that lacks an item, or names one twice, is not used.
    void Load();
    /// Puts an item in a place, counted from 0; those between its old place and the new one move along.
    /// The new order is kept.
    void Move(MenuItem item, std::size_t place);

    MenuItem At(std::size_t place) const { return items_[place]; }
    std::size_t PlaceOf(MenuItem item) const;

  private:
    using Items = std::array<MenuItem, kMenuItems>;

    void Keep() const;

    Items items_ = {MenuItem::Radio,  MenuItem::Media, MenuItem::Sources,
                    MenuItem::Gauges, MenuItem::Files, MenuItem::Settings};
};

}  // namespace korvane::demo
