#include <cstdio>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>

#include "platform/Simulation.h"
#include "platform/coredll.h"

#include "tests/platform/EnvironmentVariable.h"
#include "tools/hostfile/HostFolder.h"

namespace korvane {
namespace {

namespace fs = std::filesystem;

// No device lies beside the program, and none is chosen.
class NoDevice : public testing::Test {
  protected:
    NoDevice() {
        fs::create_directory(folder_);
        fs::current_path(folder_);
    }
    ~NoDevice() override {
        fs::current_path(before_);
        tools::RemoveHostFolder(folder_);
    }

    const fs::path before_ = fs::current_path();
    const fs::path folder_ =
        fs::temp_directory_path() / ("korvane test " + std::to_string(GetCurrentProcessId()));
    const EnvironmentVariable unchosen_{"KORVANE_DEVICE_ROOT", ""};
};

std::wstring SystemFolder() {
    wchar_t folder[MAX_PATH];
    return {folder, GetSystemDirectoryW(folder, MAX_PATH)};
}

TEST_F(NoDevice, LeavesPathsAsTheyAreGiven) {
    EXPECT_EQ(DeviceRoot(), "");
    EXPECT_EQ(ToHostPath(L"\\NandFlash\\a.ini"), "\\NandFlash\\a.ini");
    EXPECT_EQ(ToHostPath(L"a.ini"), "a.ini");
}

TEST_F(NoDevice, ResolvesAPathFromTheRootOfTheCurrentDrive) {
    const std::wstring path = (L"\\" / folder_.relative_path() / L"made here").wstring();
    ASSERT_TRUE(CreateDirectoryW(path.c_str(), nullptr));
    EXPECT_TRUE(fs::is_directory(folder_ / "made here"));
    WIN32_FIND_DATAW data{};
    const HANDLE search = FindFirstFileW((path.substr(0, path.rfind(L'\\')) + L"\\*").c_str(), &data);
    ASSERT_NE(search, INVALID_HANDLE_VALUE);
    EXPECT_STREQ(data.cFileName, L"made here");
    EXPECT_FALSE(FindNextFileW(search, &data));
    EXPECT_TRUE(FindClose(search));
    EXPECT_TRUE(RemoveDirectoryW(path.c_str()));
    EXPECT_FALSE(fs::exists(folder_ / "made here"));
}

TEST_F(NoDevice, ResolvesAPathWithoutASeparatorInFrontFromTheCurrentFolder) {
    std::FILE* const file = _wfopen(L"a.ini", L"wb");
    ASSERT_NE(file, nullptr);
    std::fclose(file);
    EXPECT_TRUE(fs::exists(folder_ / "a.ini"));
    EXPECT_TRUE(MoveFileW(L"a.ini", L".\\b.ini"));
    EXPECT_NE(GetFileAttributesW((folder_ / "b.ini").c_str()), INVALID_FILE_ATTRIBUTES);
    EXPECT_TRUE(DeleteFileW(L"b.ini"));
    EXPECT_FALSE(fs::exists(folder_ / "b.ini"));
}

TEST_F(NoDevice, LoadsALibraryByAPathOfTheSystem) {
    fs::copy_file(before_.root_path() / KORVANE_TEST_MODULE, "answer.dll");
    const HMODULE module = LoadLibraryW((folder_ / "answer.dll").c_str());
    ASSERT_NE(module, nullptr);
    EXPECT_NE(GetProcAddressW(module, L"LQ_GetAnswer"), nullptr);
    EXPECT_TRUE(FreeLibrary(module));
}

TEST_F(NoDevice, FindsFilesOfTheSystem) {
    EXPECT_NE(GetFileAttributesW((SystemFolder() + L"\\kernel32.dll").c_str()), INVALID_FILE_ATTRIBUTES);
    WIN32_FIND_DATAW found;
    const HANDLE search = FindFirstFileW((SystemFolder() + L"\\kernel32.*").c_str(), &found);
    EXPECT_NE(search, INVALID_HANDLE_VALUE);
    FindClose(search);
}

TEST_F(NoDevice, LoadsALibraryOfTheSystemByItsBareName) {
    for (const std::wstring& path : {SystemFolder() + L"\\version.dll", std::wstring(L"version.dll")}) {
        const HMODULE module = LoadLibraryW(path.c_str());
        ASSERT_NE(module, nullptr);
        EXPECT_NE(GetProcAddressW(module, L"GetFileVersionInfoW"), nullptr);
        EXPECT_TRUE(FreeLibrary(module));
    }
    EXPECT_EQ(LoadLibraryW(L"no such library.dll"), nullptr);
}

TEST_F(NoDevice, HasMediaThatArePluggedIn) {
    fs::create_directory("stick");
    PlugMedium(L"USB", (folder_ / "stick").u8string());
    EXPECT_TRUE(CreateDirectoryW(L"\\USB\\Photos", nullptr));
    EXPECT_TRUE(fs::is_directory(folder_ / "stick" / "Photos"));
    PlugMedium(L"USB", "");
}

}  // namespace
}  // namespace korvane
