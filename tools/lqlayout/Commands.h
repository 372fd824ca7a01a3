#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "tools/commandline/ScreenSize.h"
#include "tools/hostfile/FilePairs.h"
#include "tools/lqlayout/Render.h"

/// What the program does to one file. False when it fails; `messages` are the lines to print about it, with
/// the names of the files.
namespace korvane::tools {

/// A text layout to a compiled one.
bool CompileFile(const FilePair& pair, std::vector<std::string>& messages);

/// A compiled layout to a text.
bool DumpFile(const std::filesystem::path& file, std::string& text, std::vector<std::string>& messages);
bool DumpFile(const FilePair& pair, std::vector<std::string>& messages);

struct CheckOptions {
    ScreenSize screen;
    std::vector<std::string> languages;
    bool checksImages = true;
    bool isStrict = false;  ///< a warning fails, too
};

bool CheckFile(const std::filesystem::path& file, const CheckOptions& options,
               std::vector<std::string>& messages);

/// A layout of either form to a picture.
bool RenderFile(const FilePair& pair, const RenderOptions& options, std::vector<std::string>& messages);

}  // namespace korvane::tools
