#include <gtest/gtest.h>
#include <string>

#include "platform/Simulation.h"
#include "platform/coredll.h"

namespace korvane {
namespace {

// Where the device root is neither set nor a folder beside the library.
class SystemPath : public testing::Test {
  protected:
    SystemPath() {
        SetDeviceRoot("");
        if (!DeviceRoot().empty())
            ADD_FAILURE() << "the device root is " << DeviceRoot();
    }
};

std::wstring SystemFolder() {
    wchar_t folder[MAX_PATH];
    return {folder, GetSystemDirectoryW(folder, MAX_PATH)};
}

TEST_F(SystemPath, IsThatOfTheSystem) {
    EXPECT_NE(GetFileAttributesW((SystemFolder() + L"\\kernel32.dll").c_str()), INVALID_FILE_ATTRIBUTES);
    WIN32_FIND_DATAW found;
    const HANDLE search = FindFirstFileW((SystemFolder() + L"\\kernel32.*").c_str(), &found);
    EXPECT_NE(search, INVALID_HANDLE_VALUE);
    FindClose(search);
}

TEST_F(SystemPath, LeadsToItsLibraries) {
    for (const std::wstring& path : {SystemFolder() + L"\\version.dll", std::wstring(L"version.dll")}) {
        const HMODULE module = LoadLibraryW(path.c_str());
        ASSERT_NE(module, nullptr);
        EXPECT_NE(GetProcAddressW(module, L"GetFileVersionInfoW"), nullptr);
        EXPECT_TRUE(FreeLibrary(module));
    }
    EXPECT_EQ(LoadLibraryW(L"no such library.dll"), nullptr);
}

}  // namespace
}  // namespace korvane
