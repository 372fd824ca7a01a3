#pragma once

#include <filesystem>

namespace korvane::test {

/// Makes a file or folder of the build be in another place, too, where it is only read: a link where the
/// system lets everybody make one, else links to the same files, else copies.
void ShareFile(const std::filesystem::path& from, const std::filesystem::path& to);
void ShareFolder(const std::filesystem::path& from, const std::filesystem::path& to);

}  // namespace korvane::test
