#pragma once

#include <filesystem>

namespace korvane::tools {

/// Removes the folder with all that is in it, as far as the system lets it. What a process has open stays on
/// some systems, or goes with the process: nobody waits for that.
void RemoveHostFolder(const std::filesystem::path& folder);

}  // namespace korvane::tools
