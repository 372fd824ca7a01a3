#include <cstdio>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>

#include "platform/Simulation.h"
#include "platform/coredll.h"

#include "tests/platform/EnvironmentVariable.h"

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
        std::error_code ignored;
        fs::remove_all(folder_, ignored);
    }

    const fs::path before_ = fs::current_path();
    const fs::path folder_ =
        fs::temp_directory_path() / ("korvane test " + std::to_string(GetCurrentProcessId()));
    const EnvironmentVariable unchosen_{"KORVANE_DEVICE_ROOT", ""};
};

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

TEST_F(NoDevice, HasMediaThatArePluggedIn) {
    fs::create_directory("stick");
    PlugMedium(L"USB", (folder_ / "stick").u8string());
    EXPECT_TRUE(CreateDirectoryW(L"\\USB\\Photos", nullptr));
    EXPECT_TRUE(fs::is_directory(folder_ / "stick" / "Photos"));
    PlugMedium(L"USB", "");
}

}  // namespace
}  // namespace korvane
