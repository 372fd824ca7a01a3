#pragma once

#include <string>

namespace korvane::demo {

/// A play time: "0:07", "12:34", from an hour on "1:02:03". Less than nothing is nothing.
std::wstring PlayTimeText(int seconds);

}  // namespace korvane::demo
