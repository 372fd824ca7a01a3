#include "tests/support/RemoveFolder.h"

#include <system_error>
#include <vector>

namespace korvane::test {

namespace fs = std::filesystem;

void RemoveFolder(const fs::path& folder) {
    std::error_code failure;
    // A folder comes before what is in it.
    std::vector<fs::path> paths = {folder};
    for (fs::recursive_directory_iterator entry(folder, failure), end; !failure && entry != end;
         entry.increment(failure))
        paths.push_back(entry->path());
    for (auto path = paths.rbegin(); path != paths.rend(); ++path)
        fs::remove(*path, failure);
}

}  // namespace korvane::test
