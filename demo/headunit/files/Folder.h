#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace korvane::demo {

/// What a folder holds.
struct FolderEntry {
    std::wstring name;
    bool isFolder;
    std::uint64_t bytes;  ///< of a file
};

/// Whether there is a folder of this path.
bool IsFolder(const std::wstring& path);

/// The folders and then the files in a folder, each in the order of their names, 10,000 at most. Names that
/// begin with a dot or hold a separator of paths are left out. Nothing when the folder is not there.
std::optional<std::vector<FolderEntry>> ReadFolder(const std::wstring& path);

}  // namespace korvane::demo
