#include <gtest/gtest.h>

#include "engine/system/System.h"
#include "platform/Simulation.h"

#include "tests/system/ScratchDevice.h"

namespace fs = std::filesystem;

TEST(CreateDir, MakesTheFolderAndThoseAboveIt) {
    const ScratchDevice device;
    EXPECT_TRUE(CreateDir(L"\\NandFlash\\Application\\Data"));
    EXPECT_TRUE(fs::is_directory(device.HostPath("NandFlash/Application/Data")));
    EXPECT_TRUE(CreateDir(std::wstring(L"NandFlash/application/Other\\")));
    EXPECT_TRUE(fs::is_directory(device.HostPath("NandFlash/Application/Other")));
}

TEST(CreateDir, AcceptsAFolderThatExists) {
    const ScratchDevice device;
    EXPECT_TRUE(CreateDir(L"\\a"));
    EXPECT_TRUE(CreateDir(L"\\A"));
    EXPECT_TRUE(CreateDir(L"\\"));
    EXPECT_EQ(device.CountEntries("."), 1);
}

TEST(CreateDir, FailsWhereAFileStands) {
    const ScratchDevice device;
    device.Write("a/file", "kept");
    EXPECT_FALSE(CreateDir(L"\\a\\file"));
    EXPECT_FALSE(CreateDir(L"\\a\\file\\below"));
    EXPECT_EQ(device.Read("a/file"), "kept");
}

TEST(CreateDir, RefusesNullEmptyAndOverlongPaths) {
    const ScratchDevice device;
    EXPECT_FALSE(CreateDir(static_cast<const wchar_t*>(nullptr)));
    EXPECT_FALSE(CreateDir(L""));
    EXPECT_FALSE(CreateDir(std::wstring(260, L'd')));
    EXPECT_FALSE(CreateDir(std::wstring(1000000, L'\\')));
    EXPECT_EQ(device.CountEntries("."), 0);
}

TEST(IsFileExist, TellsAFileFromAFolderAndFromNothing) {
    const ScratchDevice device;
    device.Write("folder/file.ini", "");
    EXPECT_TRUE(IsFileExist(L"\\Folder\\FILE.ini"));
    EXPECT_TRUE(IsFileExist(std::wstring(L"folder/file.ini")));
    EXPECT_FALSE(IsFileExist(L"\\folder"));
    EXPECT_FALSE(IsFileExist(L"\\folder\\other.ini"));
    EXPECT_FALSE(IsFileExist(L""));
    EXPECT_FALSE(IsFileExist(static_cast<const wchar_t*>(nullptr)));
}

TEST(GetCurrentMS, RunsOnTheClockOfMessageTimesAndWrapsWithIt) {
    SYSTEMTIME time = {};
    time.wYear = 2024;
    time.wMonth = 1;
    time.wDay = 1;
    korvane::UseManualClock(0xFFFFFFF0u, time);
    EXPECT_EQ(GetCurrentMS(), 0xFFFFFFF0u);
    korvane::PostAt(nullptr, WM_APP, 0, 0, GetTickCount());
    korvane::AdvanceClock(701);
    MSG message = {};
    ASSERT_TRUE(PeekMessageW(&message, nullptr, WM_APP, WM_APP, PM_REMOVE));
    EXPECT_EQ(GetCurrentMS() - message.time, 701u);
    korvane::UseSystemClock();
}

TEST(CursorState, IsOffUntilSet) {
    EXPECT_FALSE(IsCursorState());
    korvane::SetCursorState(true);
    EXPECT_TRUE(IsCursorState());
    korvane::SetCursorState(false);
    EXPECT_FALSE(IsCursorState());
}

namespace {

class ResourceFolder : public testing::Test {
  protected:
    ~ResourceFolder() override { korvane::SetResourceFolder(std::wstring()); }
};

}  // namespace

TEST_F(ResourceFolder, HasASubFolderForEachKind) {
    using korvane::ResourceKind;
    using korvane::ResourcePath;
    EXPECT_EQ(ResourcePath(ResourceKind::Image, L"a.lqi"),
              L"\\NandFlash\\Application\\Resource\\Image\\a.lqi");
    EXPECT_EQ(ResourcePath(ResourceKind::Layout, L"a.bin"),
              L"\\NandFlash\\Application\\Resource\\Layout\\a.bin");
    EXPECT_EQ(ResourcePath(ResourceKind::Language, L"a.lng"),
              L"\\NandFlash\\Application\\Resource\\Language\\a.lng");
    EXPECT_EQ(ResourcePath(ResourceKind::Font, L"a.ttf"), L"\\NandFlash\\Application\\Resource\\Font\\a.ttf");
}

TEST_F(ResourceFolder, LeavesNamesThatNameAFolderAndNoNamesAsTheyAre) {
    using korvane::ResourceKind;
    using korvane::ResourcePath;
    EXPECT_EQ(ResourcePath(ResourceKind::Image, L"\\Other\\a.lqi"), L"\\Other\\a.lqi");
    EXPECT_EQ(ResourcePath(ResourceKind::Image, L"other/a.lqi"), L"other/a.lqi");
    EXPECT_EQ(ResourcePath(ResourceKind::Image, L""), L"");
}

TEST_F(ResourceFolder, CanBeAnother) {
    using korvane::ResourceKind;
    using korvane::ResourcePath;
    korvane::SetResourceFolder(L"\\Own");
    EXPECT_EQ(ResourcePath(ResourceKind::Font, L"a.ttf"), L"\\Own\\Font\\a.ttf");
    korvane::SetResourceFolder(L"Own/");
    EXPECT_EQ(ResourcePath(ResourceKind::Font, L"a.ttf"), L"Own/Font\\a.ttf");
    korvane::SetResourceFolder(L"");
    EXPECT_EQ(ResourcePath(ResourceKind::Font, L"a.ttf"), L"\\NandFlash\\Application\\Resource\\Font\\a.ttf");
}
