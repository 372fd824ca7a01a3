#pragma once

#include <filesystem>

namespace korvane::test {

/// Removes the folder with all that is in it, as far as the system lets it. What the process has open stays
/// on some systems, or goes with the process: nobody waits for that.
void RemoveFolder(const std::filesystem::path& folder);

}  // namespace korvane::test
