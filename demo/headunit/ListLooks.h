#pragma once

#include <array>
#include <string>
#include <vector>

#include "KorvaneEx.h"

namespace korvane::demo {

/// The four looks of the head unit's lists: icons, and colours of the captions. A list borrows its icons, so
/// its looks end after it.
class ListLooks {
  public:
    /// Gives them to a list. A name is that of an item's icon, which has an image file for each look:
    /// "<name>_n.lqi" for the normal one, _p while it is touched, _f for the selected one, _d when disabled.
    void GiveTo(CLQSwitchList& list, const std::vector<std::wstring>& names);
    /// Gives some of its items, one flag an item, the icons of disabled ones. They take touches as before.
    void Dim(CLQSwitchList& list, const std::vector<bool>& dimmed);

  private:
    std::array<std::vector<CLQSurfHandle>, 4> icons_;
};

}  // namespace korvane::demo
