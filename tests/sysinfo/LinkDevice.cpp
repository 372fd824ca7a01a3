#include "tests/sysinfo/LinkDevice.h"

#include "platform/SharedMemory.h"

#include "tests/support/InstallService.h"

namespace korvane::test {

namespace fs = std::filesystem;

LinkDevice::~LinkDevice() {
    RemoveSharedMemory();
}

fs::path LinkDevice::At(const std::string& name) const {
    return fs::u8path(device_.Path()) / name;
}

void LinkDevice::InstallRealService() const {
    InstallService(At(""));
}

void LinkDevice::InstallStub(const std::string& name) const {
    InstallService(At(""), fs::u8path(KORVANE_TEST_STUBS) / (name + ".dll"));
}

}  // namespace korvane::test
