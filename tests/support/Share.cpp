#include "tests/support/Share.h"

namespace korvane::test {

namespace fs = std::filesystem;

void ShareFile(const fs::path& from, const fs::path& to) {
    std::error_code failure;
    fs::create_symlink(from, to, failure);
    if (failure)
        fs::create_hard_link(from, to, failure);
    if (failure)
        fs::copy_file(from, to);
}

void ShareFolder(const fs::path& from, const fs::path& to) {
    std::error_code failure;
    fs::create_directory_symlink(from, to, failure);
    if (!failure)
        return;
    fs::create_directory(to);
    for (const fs::directory_entry& entry : fs::directory_iterator(from)) {
        if (entry.is_directory())
            ShareFolder(entry.path(), to / entry.path().filename());
        else
            ShareFile(entry.path(), to / entry.path().filename());
    }
}

}  // namespace korvane::test
