#pragma once

#include <map>
#include <set>
#include <string>

namespace korvane::test {

// Where the test's layout puts the strip and its parts, in screen coordinates of a window at (0, 0).
constexpr int kStripX = 3;
constexpr int kStripY = 7;
constexpr int kInfoX = 203;
constexpr int kInfoY = 17;
constexpr int kInfoWidth = 240;
constexpr int kInfoHeight = 40;
constexpr int kCancelWidth = 60;

/// A small "GpTitle.bin" with everything that the strip looks for, as text; or with something amiss in it.
struct TitleLayout {
    /// Names of controls that are missing. What is in a missing group is in the group around it.
    std::set<std::string> without;
    /// Controls of another kind than they should have, such as {"StInfo", "button"}.
    std::map<std::string, std::string> kinds;
    /// Further properties of controls.
    std::map<std::string, std::string> properties;

    std::string Text() const;

    /// Names of all controls.
    static std::set<std::string> Names();
};

}  // namespace korvane::test
