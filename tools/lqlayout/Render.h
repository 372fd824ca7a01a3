#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "tools/commandline/ScreenSize.h"
#include "tools/lqlayout/Layout.h"

namespace korvane::tools {

/// What a picture of a layout shows. Controls are named as in the layout.
struct RenderOptions {
    ScreenSize screen;
    std::string language;  ///< a table, named as for CLQLangManager::LoadLanguage; empty: none
    std::vector<std::string> shown;
    std::vector<std::string> hidden;
    std::vector<std::string> pressed;
    std::vector<std::string> disabled;
};

/// Paints a layout, over black, as the head unit does, and writes the screen as a PNG file. On failure
/// `error` says what is wrong. One layout can be painted per process.
bool RenderLayout(Layout& layout, const RenderOptions& options, const std::filesystem::path& png,
                  std::string& error);

}  // namespace korvane::tools
