#include "tests/demo/files/Stick.h"

#include <fstream>

namespace korvane::test {

namespace fs = std::filesystem;

void Stick::Write(const std::string& name, std::size_t bytes) const {
    const fs::path path = folder_ / fs::u8path(name);
    if (name.empty() || name.back() == '/') {
        fs::create_directories(path);
        return;
    }
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << std::string(bytes, '.');
}

void Stick::Remove(const std::string& name) const {
    fs::remove_all(folder_ / fs::u8path(name));
}

}  // namespace korvane::test
