#pragma once

#include <array>
#include <vector>

#include "KorvaneEx.h"

namespace korvane::demo {

/// A cell of a list.
struct ListCell {
    static constexpr int kSwitchesPages = -1;

    int value;            ///< what it stands for, or kSwitchesPages
    int caption;          ///< its text in the language table
    const wchar_t* icon;  ///< "<icon>_n.lqi" is the normal one, _p while touched, _f when selected, _d dimmed
};

/// The four looks of the head unit's lists: icons, and colours of the captions. A list borrows its icons, so
/// its looks end after it.
class ListLooks {
  public:
    /// Gives them to a list, and the captions.
    void GiveTo(CLQSwitchList& list, const std::vector<ListCell>& cells);
    /// Gives some of its items, one flag an item, the icons of disabled ones. They take touches as before.
    void Dim(CLQSwitchList& list, const std::vector<bool>& dimmed);

  private:
    std::array<std::vector<CLQSurfHandle>, 4> icons_;
};

}  // namespace korvane::demo
