#pragma once

#include <string>

#include "tools/hostfile/FilePairs.h"

/// What the program does to one file. On failure `error` names the file and says what is wrong with it.
namespace korvane::tools {

/// A text layout to a ".bin" layout.
bool CompileFile(const FilePair& pair, std::string& error);

}  // namespace korvane::tools
