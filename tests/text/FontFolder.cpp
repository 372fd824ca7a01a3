#include "tests/text/FontFolder.h"

#include <fstream>
#include <iterator>
#include <random>

#include "platform/Simulation.h"

#include "tools/hostfile/HostFolder.h"

namespace korvane::test {

namespace {

constexpr char kFontFolder[] = "NandFlash/Application/Resource/Font";

}  // namespace

FontFolder::FontFolder()
    : root_(std::filesystem::temp_directory_path() /
            ("korvane-fonts-" + std::to_string(std::random_device()()))) {
    std::filesystem::create_directories(root_ / kFontFolder);
    SetDeviceRoot(root_.u8string());
}

FontFolder::~FontFolder() {
    SetDeviceRoot("");
    tools::RemoveHostFolder(root_);
}

void FontFolder::Write(const std::string& file, const std::string& bytes) const {
    std::ofstream(root_ / kFontFolder / file, std::ios::binary) << bytes;
}

std::string FontFolder::DeviceFont(const std::string& file) {
    std::ifstream font(std::filesystem::path(KORVANE_TEST_DEVICE_DIR) / kFontFolder / file, std::ios::binary);
    return {std::istreambuf_iterator<char>(font), std::istreambuf_iterator<char>()};
}

}  // namespace korvane::test
