#include "tests/platform/DeviceFolder.h"

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
    const std::filesystem::path file = At(name);
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << contents;
}

std::string DeviceFolder::Read(const std::string& name) const {
    std::ifstream file(At(name), std::ios::binary);
    EXPECT_TRUE(file) << name;
    return {std::istreambuf_iterator<char>(file), {}};
}

std::filesystem::path DeviceFolder::At(const std::string& name) const {
    return std::filesystem::u8path(path_ + '/' + name);
}

std::filesystem::path HostPath(const wchar_t* devicePath) {
    return std::filesystem::u8path(ToHostPath(devicePath));
}

}  // namespace korvane
