#include "tests/support/InstallService.h"

#include "tests/support/Share.h"

namespace korvane::test {

namespace fs = std::filesystem;

void InstallService(const fs::path& deviceFolder) {
    InstallService(deviceFolder, fs::u8path(KORVANE_TEST_SERVICE));
}

void InstallService(const fs::path& deviceFolder, const fs::path& library) {
    const fs::path folder = deviceFolder / "NandFlash" / "Application" / "Bin";
    fs::create_directories(folder);
    fs::remove(folder / "LQ_ShareMem.dll");
    ShareFile(library, folder / "LQ_ShareMem.dll");
}

}  // namespace korvane::test
