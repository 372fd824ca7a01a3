#include "tools/hostfile/FilePairs.h"

#include <algorithm>
#include <system_error>

namespace korvane::tools {
namespace {

namespace fs = std::filesystem;

bool HasExtension(const fs::path& file, const std::string& extension) {
    const std::string own = file.extension().string();
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
    return std::equal(own.begin(), own.end(), extension.begin(), extension.end(),
                      [lower](char a, char b) { return lower(a) == lower(b); });
}

bool ListTree(const fs::path& folder, const std::string& extension, std::vector<fs::path>& files,
              std::error_code& failure) {
    fs::recursive_directory_iterator entry(folder, failure);
    while (!failure && entry != fs::recursive_directory_iterator()) {
        if (entry->is_regular_file(failure) && HasExtension(entry->path(), extension))
            files.push_back(entry->path());
        entry.increment(failure);
    }
    std::sort(files.begin(), files.end());
    return !failure;
}

}  // namespace

bool ListFiles(const fs::path& from, const std::string& extension, std::vector<fs::path>& files,
               std::string& error) {
    std::error_code failure;
    if (!fs::is_directory(from, failure)) {
        files.push_back(from);
        return true;
    }
    if (!ListTree(from, extension, files, failure)) {
        error = from.string() + ": " + failure.message();
        return false;
    }
    if (files.empty()) {
        error = from.string() + ": holds no " + extension + " files";
        return false;
    }
    return true;
}

bool ListFilePairs(const fs::path& from, const fs::path& to, const std::string& fromExtension,
                   const std::string& toExtension, std::vector<FilePair>& pairs, std::string& error) {
    std::error_code failure;
    if (!fs::is_directory(from, failure)) {
        pairs.push_back({from, to});
        return true;
    }
    std::vector<fs::path> files;
    if (!ListFiles(from, fromExtension, files, error))
        return false;
    for (const fs::path& file : files) {
        const fs::path made = (to / file.lexically_relative(from)).replace_extension(toExtension);
        fs::create_directories(made.parent_path(), failure);
        if (failure) {
            error = made.parent_path().string() + ": " + failure.message();
            return false;
        }
        pairs.push_back({file, made});
    }
    return true;
}

bool IsOneFile(const FilePair& pair, std::string& error) {
    std::error_code failure;
    if (!fs::equivalent(pair.from, pair.to, failure) || failure)
        return false;
    error = pair.to.string() + ": is the file that is read; name another to write";
    return true;
}

}  // namespace korvane::tools
