#include <filesystem>
#include <gtest/gtest.h>

#include "platform/Files.h"
#include "platform/Simulation.h"
#include "platform/coredll.h"

#include "tests/platform/DeviceFolder.h"

// What a host does that tells cases apart, has permissions, and lets a file be replaced that is open.

namespace korvane {
namespace {

TEST(HostName, IsSpeltAsTheHostHasIt) {
    const DeviceFolder device;
    device.Write("NandFlash/Application/Profile/LQ_SysSettings.ini");
    EXPECT_EQ(ToHostPath(L"\\NANDFLASH\\application\\profile\\lq_syssettings.INI"),
              device.Path() + "/NandFlash/Application/Profile/LQ_SysSettings.ini");
    EXPECT_EQ(ToHostPath(L"\\nandflash\\New Folder\\New.ini"),
              device.Path() + "/NandFlash/New Folder/New.ini");
}

TEST(HostName, IsTheExactOneOfSeveralElseTheFirst) {
    const DeviceFolder device;
    device.Write("abc");
    device.Write("Abc");
    device.Write("aBC");
    EXPECT_EQ(ToHostPath(L"abc"), device.Path() + "/abc");
    EXPECT_EQ(ToHostPath(L"aBC"), device.Path() + "/aBC");
    EXPECT_EQ(ToHostPath(L"ABC"), device.Path() + "/Abc");
}

TEST(HostName, ChangesItsCase) {
    const DeviceFolder device;
    device.Write("name");
    EXPECT_TRUE(MoveFileW(L"name", L"NAME"));
    EXPECT_EQ(ToHostPath(L"Name"), device.Path() + "/NAME");
}

TEST(HostFile, KeepsItsPermissionsWhenItIsReplaced) {
    const DeviceFolder device;
    device.Write("file");
    const auto path = std::filesystem::path(device.Path()) / "file";
    using std::filesystem::perms;
    std::filesystem::permissions(path, perms::owner_read | perms::owner_write);
    EXPECT_TRUE(ReplaceFileAtomically(L"file", "new", 3));
    EXPECT_EQ(std::filesystem::status(path).permissions(), perms::owner_read | perms::owner_write);
}

TEST(HostFile, IsReplacedWhileItIsOpen) {
    const DeviceFolder device;
    device.Write("file", "old");
    std::FILE* const open = _wfopen(L"file", L"rb");
    ASSERT_NE(open, nullptr);
    EXPECT_TRUE(ReplaceFileAtomically(L"file", "new", 3));
    std::fclose(open);
    EXPECT_EQ(device.Read("file"), "new");
}

TEST(HostSearch, RefusesOneThatIsOver) {
    const DeviceFolder device;
    device.Write("file");
    WIN32_FIND_DATAW data{};
    const HANDLE search = FindFirstFileW(L"\\file", &data);
    EXPECT_TRUE(FindClose(search));
    EXPECT_FALSE(FindClose(search));
    EXPECT_FALSE(FindClose(nullptr));
}

}  // namespace
}  // namespace korvane
