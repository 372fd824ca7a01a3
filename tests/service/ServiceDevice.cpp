#include "tests/service/ServiceDevice.h"

#include <fstream>
#include <iterator>

#include "platform/SharedMemory.h"

#include "tests/support/InstallService.h"

namespace korvane::test {

namespace fs = std::filesystem;

DeviceWithService::DeviceWithService() {
    InstallService(fs::u8path(device.Path()));
}

DeviceWithService::~DeviceWithService() {
    RemoveSharedMemory();
}

void ServiceDevice::Restart() {
    RemoveSharedMemory();
}

fs::path ServiceDevice::SetupFile() const {
    return fs::u8path(device.Path()) / "NandFlash/Application/Profile/LQ_SetupInfo.ini";
}

std::string ServiceDevice::ReadSetupFile() const {
    std::ifstream file(SetupFile(), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void ServiceDevice::WriteSetupFile(const std::string& contents) const {
    device.Write("NandFlash/Application/Profile/LQ_SetupInfo.ini", contents);
}

}  // namespace korvane::test
