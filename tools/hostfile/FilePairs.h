#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace korvane::tools {

/// The file, or all files in the folder and below it whose names end in `extension` (in any case), in the
/// order of their names. On failure, as for a folder without any, `error` names it and says what is wrong.
bool ListFiles(const std::filesystem::path& from, const std::string& extension,
               std::vector<std::filesystem::path>& files, std::string& error);

/// A file to read and the file to make of it.
struct FilePair {
    std::filesystem::path from;
    std::filesystem::path to;
};

/// What a conversion of `from` to `to` works on. A file gives the one pair. A folder gives the files that
/// ListFiles gives, each with its place below `to`, whose folders are made, and with `toExtension` in place
/// of its own. On failure `error` names the file or folder and says what is wrong.
bool ListFilePairs(const std::filesystem::path& from, const std::filesystem::path& to,
                   const std::string& fromExtension, const std::string& toExtension,
                   std::vector<FilePair>& pairs, std::string& error);

/// True, with an error, where writing the file `to` would destroy `from`, which is read: both names lead to
/// one file, by whatever links.
bool IsOneFile(const FilePair& pair, std::string& error);

}  // namespace korvane::tools
