#include "tests/system/ScratchDevice.h"

#include <fstream>
#include <iterator>
#include <random>

#include "platform/Simulation.h"

namespace fs = std::filesystem;

ScratchDevice::ScratchDevice() {
    std::random_device random;
    do {
        root_ = fs::temp_directory_path() / ("korvane-system-" + std::to_string(random()));
    } while (!fs::create_directory(root_));
    korvane::SetDeviceRoot(root_.u8string());
}

ScratchDevice::~ScratchDevice() {
    korvane::SetDeviceRoot(std::string());
    std::error_code ignored;
    fs::remove_all(root_, ignored);
}

void ScratchDevice::Write(const std::string& name, std::string_view bytes) const {
    fs::create_directories(HostPath(name).parent_path());
    std::ofstream file(HostPath(name), std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

std::string ScratchDevice::Read(const std::string& name) const {
    std::ifstream file(HostPath(name), std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
}

int ScratchDevice::CountEntries(const std::string& folder) const {
    return static_cast<int>(
        std::distance(fs::directory_iterator(HostPath(folder)), fs::directory_iterator()));
}
