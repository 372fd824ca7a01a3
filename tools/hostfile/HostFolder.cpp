#include "tools/hostfile/HostFolder.h"

#include <system_error>
#include <vector>

namespace korvane::tools {

namespace fs = std::filesystem;

// Not std::filesystem::remove_all, which may try for ever where a file that is open stays.
void RemoveHostFolder(const fs::path& folder) {
    std::error_code failure;
    // A folder comes before what is in it.
    std::vector<fs::path> paths = {folder};
    for (fs::recursive_directory_iterator
             entry(folder, fs::directory_options::skip_permission_denied, failure),
         end;
         !failure && entry != end; entry.increment(failure))
        paths.push_back(entry->path());
    for (auto path = paths.rbegin(); path != paths.rend(); ++path)
        fs::remove(*path, failure);
}

}  // namespace korvane::tools
