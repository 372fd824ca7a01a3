#include "tests/tools/TemporaryFolder.h"

#include <algorithm>
#include <fstream>
#include <iterator>

namespace korvane::test {

namespace fs = std::filesystem;

void TemporaryFolder::SetUp() {
    const ::testing::TestInfo& test = *::testing::UnitTest::GetInstance()->current_test_info();
    folder_ =
        fs::path(::testing::TempDir()) / (std::string("korvane ") + test.test_suite_name() + test.name());
    fs::remove_all(folder_);
    fs::create_directories(folder_);
}

void TemporaryFolder::TearDown() {
    fs::remove_all(folder_);
}

std::vector<std::uint8_t> TemporaryFolder::Read(const std::string& name) const {
    std::ifstream file(At(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void TemporaryFolder::Write(const std::string& name, const std::vector<std::uint8_t>& bytes) const {
    std::ofstream file(At(name), std::ios::binary | std::ios::trunc);
    file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
}

std::vector<std::string> TemporaryFolder::Files() const {
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder_)) {
        if (entry.is_regular_file())
            names.push_back(entry.path().lexically_relative(folder_).generic_string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

}  // namespace korvane::test
