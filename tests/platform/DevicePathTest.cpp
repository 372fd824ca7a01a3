#include <filesystem>
#include <gtest/gtest.h>

#include "platform/Simulation.h"
#include "platform/coredll.h"

#include "tests/platform/DeviceFolder.h"
#include "tests/platform/EnvironmentVariable.h"

namespace korvane {
namespace {

namespace fs = std::filesystem;

TEST(DevicePath, TakesSeparatorsOfEitherKindWithOrWithoutALeadingOne) {
    const DeviceFolder device;
    device.Write("NandFlash/Application/a.ini");
    const fs::path expected = device.At("NandFlash/Application/a.ini");
    EXPECT_EQ(HostPath(L"\\NandFlash\\Application\\a.ini"), expected);
    EXPECT_EQ(HostPath(L"NandFlash\\Application\\a.ini"), expected);
    EXPECT_EQ(HostPath(L"/NandFlash/Application//a.ini"), expected);
    EXPECT_EQ(HostPath(L"\\NandFlash/.\\Application\\a.ini"), expected);
}

TEST(DevicePath, IsMatchedWithoutRegardToCase) {
    const DeviceFolder device;
    device.Write("NandFlash/Application/Profile/LQ_SysSettings.ini");
    EXPECT_TRUE(fs::equivalent(HostPath(L"\\NANDFLASH\\application\\profile\\lq_syssettings.INI"),
                               device.At("NandFlash/Application/Profile/LQ_SysSettings.ini")));
}

TEST(DevicePath, FoldsLettersBeyondAscii) {
    const DeviceFolder device;
    device.Write("Żółw/ΑΘΉΝΑ/Москва");
    EXPECT_TRUE(fs::equivalent(HostPath(L"żÓŁW\\αθήνα\\МОСКВА"), device.At("Żółw/ΑΘΉΝΑ/Москва")));
}

TEST(DevicePath, NeverLeavesTheRoot) {
    const DeviceFolder device;
    device.Write("inside/file");
    EXPECT_EQ(HostPath(L"..\\..\\inside\\file"), device.At("inside/file"));
    EXPECT_EQ(HostPath(L"\\inside\\..\\..\\..\\etc\\passwd"), device.At("etc/passwd"));
    EXPECT_EQ(HostPath(L"\\"), fs::u8path(device.Path()));
    EXPECT_EQ(HostPath(L".."), fs::u8path(device.Path()));
}

TEST(DevicePath, KeepsWhatDoesNotExistAsItIsGiven) {
    const DeviceFolder device;
    device.Write("Data/known");
    EXPECT_EQ(HostPath(L"\\Data\\New Folder\\New.ini"), device.At("Data/New Folder/New.ini"));
}

TEST(DevicePath, IsEmptyForNothing) {
    const DeviceFolder device;
    EXPECT_EQ(ToHostPath(nullptr), "");
    EXPECT_EQ(ToHostPath(L""), "");
}

TEST(DevicePath, SurvivesPathsOfEveryKind) {
    const DeviceFolder device;
    EXPECT_EQ(HostPath(std::wstring(5000, L'a').c_str()), device.At(std::string(5000, 'a')));
    std::wstring deep;
    for (int i = 0; i < 2000; ++i)
        deep += L"a\\..\\";
    EXPECT_EQ(HostPath(deep.c_str()), fs::u8path(device.Path()));
    const wchar_t lone[] = {static_cast<wchar_t>(0xD800), L'x', 0};
    EXPECT_EQ(HostPath(lone), device.At("\xEF\xBF\xBDx"));
}

TEST(DevicePath, MayBeLong) {
    const DeviceFolder device;
    std::wstring path;
    for (int i = 0; i < 10; ++i) {
        path += L"\\a folder with a name of forty-four letters ";
        path += std::to_wstring(i);
        ASSERT_TRUE(CreateDirectoryW(path.c_str(), nullptr)) << i;
    }
    path += L"\\file.ini";
    std::FILE* const file = _wfopen(path.c_str(), L"wb");
    ASSERT_NE(file, nullptr);
    std::fclose(file);
    EXPECT_NE(GetFileAttributesW(path.c_str()), INVALID_FILE_ATTRIBUTES);
    EXPECT_TRUE(DeleteFileW(path.c_str()));
}

TEST(DevicePath, MayBeLongBelowARootRelativeToTheCurrentFolder) {
    const DeviceFolder device;
    const fs::path before = fs::current_path();
    fs::create_directories(device.At(std::string(120, 'c') + "/root"));
    fs::current_path(device.At(std::string(120, 'c')));
    SetDeviceRoot("root");
    const std::wstring folder = L'\\' + std::wstring(120, L'f');
    EXPECT_TRUE(CreateDirectoryW(folder.c_str(), nullptr));
    std::FILE* const file = _wfopen((folder + L"\\file.ini").c_str(), L"wb");
    EXPECT_NE(file, nullptr);
    if (file)
        std::fclose(file);
    EXPECT_TRUE(DeleteFileW((folder + L"\\file.ini").c_str()));
    fs::current_path(before);
}

TEST(DeviceRoot, ComesFromTheEnvironmentUnlessSet) {
    {
        const EnvironmentVariable chosen("KORVANE_DEVICE_ROOT", "/some/where");
        SetDeviceRoot("");
        EXPECT_EQ(DeviceRoot(), "/some/where");
        SetDeviceRoot("/else/where/");
        EXPECT_EQ(HostPath(L"\\a"), fs::path("/else/where/a"));
    }
    SetDeviceRoot("");
    EXPECT_NE(DeviceRoot(), "/some/where");
    EXPECT_NE(DeviceRoot(), "/else/where/");
}

}  // namespace
}  // namespace korvane
