#include "tests/service/ServiceDevice.h"

#include <fstream>
#include <iterator>

#include "platform/SharedMemory.h"

#include "tests/support/InstallService.h"

namespace korvane::test {

namespace fs = std::filesystem;

ServiceDevice::ServiceDevice() {
    InstallService(fs::u8path(device.Path()));
    library_ = LoadLibraryW(L"\\NandFlash\\Application\\Bin\\LQ_ShareMem.dll");
    Find(L"LQ_GetSysInfo", getSysInfo);
    Find(L"LQ_ReleaseSysInfo", releaseSysInfo);
    Find(L"LQ_InitSetupInfo", initSetupInfo);
    Find(L"LQ_GetSetupValue", getSetupValue);
    Find(L"LQ_SetSetupValue", setSetupValue);
    Find(L"LQ_GetSetupValueStr", getSetupValueStr);
    Find(L"LQ_SetSetupValueStr", setSetupValueStr);
    Find(L"LQ_ReleaseSetupInfo", releaseSetupInfo);
    Find(L"LQ_GetThumbNail", getThumbNail);
    Find(L"LQ_ReleaseThumbNail", releaseThumbNail);
}

ServiceDevice::~ServiceDevice() {
    FreeLibrary(library_);
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

std::wstring ServiceDevice::Text(const wchar_t* name) const {
    const int length = getSetupValueStr(name, nullptr, 0);
    if (length < 0)
        return L"(none)";
    std::wstring text(static_cast<std::size_t>(length) + 1, L'?');
    EXPECT_EQ(getSetupValueStr(name, text.data(), length + 1), length);
    EXPECT_EQ(text.back(), L'\0');
    text.pop_back();
    return text;
}

template <class Function>
void ServiceDevice::Find(const wchar_t* name, Function& function) const {
    function = reinterpret_cast<Function>(reinterpret_cast<void (*)()>(GetProcAddressW(library_, name)));
    if (!function)
        throw std::runtime_error("the service lacks an entry point");
}

}  // namespace korvane::test
