#include "tests/demo/files/Stick.h"

#include <fstream>
#include <system_error>

namespace korvane::test {

namespace fs = std::filesystem;

void Stick::Write(const std::string& name, std::size_t bytes) const {
    const fs::path path = folder_ / fs::u8path(name);
    const bool isFolder = name.empty() || name.back() == '/';
    std::error_code error;
    fs::create_directories(isFolder ? path : path.parent_path(), error);
    if (!isFolder)
        std::ofstream(path, std::ios::binary) << std::string(bytes, '.');
}

void Stick::Remove(const std::string& name) const {
    fs::remove_all(folder_ / fs::u8path(name));
}

}  // namespace korvane::test
