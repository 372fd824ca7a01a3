#include "tests/platform/DeviceFolder.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <random>

#include "platform/Simulation.h"

namespace korvane {

DeviceFolder::DeviceFolder() {
    std::random_device random;
    const auto folder = std::filesystem::temp_directory_path() /
                        ("korvane test " + std::to_string(random()) + std::to_string(random()));
    std::filesystem::create_directory(folder);
    path_ = folder.u8string();
    SetDeviceRoot(path_);
}

DeviceFolder::~DeviceFolder() {
    SetDeviceRoot("");
    std::error_code ignored;
    std::filesystem::remove_all(std::filesystem::u8path(path_), ignored);
}

void DeviceFolder::Write(const std::string& name, const std::string& contents) const {
    const auto file = std::filesystem::u8path(path_ + '/' + name);
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << contents;
}

std::string DeviceFolder::Read(const std::string& name) const {
    std::ifstream file(std::filesystem::u8path(path_ + '/' + name), std::ios::binary);
    EXPECT_TRUE(file) << name;
    return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace korvane
