#include "tests/platform/posix/RuntimeFiles.h"

#include <cstdlib>

namespace korvane {

namespace fs = std::filesystem;

fs::path RuntimeFolderPath() {
    return std::getenv("KORVANE_RUNTIME_DIR");
}

std::vector<fs::path> RuntimeFiles(const std::string& suffix) {
    std::vector<fs::path> files;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(RuntimeFolderPath())) {
        const std::string name = entry.path().string();
        if (name.size() >= suffix.size() &&
            name.compare(name.size() - suffix.size(), suffix.size(), suffix) == 0)
            files.push_back(entry.path());
    }
    return files;
}

OtherRuntimeFolder::OtherRuntimeFolder(const fs::path& name) : before_(RuntimeFolderPath()), name_(name) {
    std::string pattern = (fs::temp_directory_path() / "korvane-test-XXXXXX").string();
    if (mkdtemp(pattern.data()))
        beside_ = pattern;
    setenv("KORVANE_RUNTIME_DIR", Path().c_str(), 1);
}

OtherRuntimeFolder::~OtherRuntimeFolder() {
    setenv("KORVANE_RUNTIME_DIR", before_.c_str(), 1);
    std::error_code ignored;
    fs::remove_all(beside_, ignored);
}

}  // namespace korvane
