#pragma once

#include <string>

namespace korvane::tools {

/// Width and height of a screen in pixels; the head unit's unless told otherwise.
struct ScreenSize {
    int width = 800;
    int height = 480;
};

/// Reads "800x480". Returns what is wrong with the text, to be put behind it, or an empty text; `size` is
/// then one that the engine's screen can have.
std::string ParseScreenSize(const std::string& text, ScreenSize& size);

}  // namespace korvane::tools
