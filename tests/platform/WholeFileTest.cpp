#include <filesystem>
#include <gtest/gtest.h>
#include <string>

#include "platform/Files.h"
#include "platform/coredll.h"

#include "tests/platform/DeviceFolder.h"

namespace korvane {
namespace {

bool Replace(const wchar_t* path, const std::string& contents) {
    return ReplaceFileAtomically(path, contents.data(), contents.size());
}

std::size_t FilesIn(const std::string& folder) {
    std::size_t count = 0;
    for ([[maybe_unused]] const auto& entry :
         std::filesystem::directory_iterator(std::filesystem::u8path(folder)))
        ++count;
    return count;
}

TEST(WholeFile, IsMadeWhenItIsMissing) {
    const DeviceFolder device;
    EXPECT_TRUE(Replace(L"\\new.ini", "abc"));
    EXPECT_EQ(device.Read("new.ini"), "abc");
    EXPECT_EQ(FilesIn(device.Path()), 1u);
}

TEST(WholeFile, TakesThePlaceOfTheOldOneUnderItsOldName) {
    const DeviceFolder device;
    device.Write("Old.ini", "a longer text");
    EXPECT_TRUE(Replace(L"\\OLD.INI", "abc"));
    EXPECT_EQ(device.Read("Old.ini"), "abc");
    EXPECT_EQ(FilesIn(device.Path()), 1u);
}

TEST(WholeFile, LeavesWhoHasTheOldOneOpenItsContents) {
    const DeviceFolder device;
    device.Write("file", "old");
    std::FILE* const open = _wfopen(L"file", L"rb");
    ASSERT_NE(open, nullptr);
    const bool isReplaced = Replace(L"file", "new");
    char text[4] = {};
    EXPECT_EQ(std::fread(text, 1, 3, open), 3u);
    EXPECT_STREQ(text, "old");
    std::fclose(open);
    EXPECT_EQ(device.Read("file"), isReplaced ? "new" : "old");
    EXPECT_EQ(FilesIn(device.Path()), 1u);
    EXPECT_TRUE(Replace(L"file", "new")) << "once it is closed";
}

TEST(WholeFile, IsNotWrittenWhereItCannotBe) {
    const DeviceFolder device;
    std::filesystem::create_directory(std::filesystem::u8path(device.Path() + "/folder"));
    EXPECT_FALSE(Replace(L"folder", "abc"));
    EXPECT_FALSE(Replace(L"none\\file", "abc"));
    EXPECT_FALSE(Replace(nullptr, "abc"));
    EXPECT_FALSE(Replace(L"", "abc"));
    EXPECT_FALSE(ReplaceFileAtomically(L"file", nullptr, 3));
    EXPECT_EQ(FilesIn(device.Path()), 1u);
    EXPECT_TRUE(ReplaceFileAtomically(L"file", nullptr, 0));
    EXPECT_EQ(device.Read("file"), "");
}

TEST(WholeFile, IsReadUpToALimit) {
    const DeviceFolder device;
    device.Write("file", "12345");
    std::vector<unsigned char> bytes;
    EXPECT_TRUE(ReadWholeFile(L"FILE", 5, bytes));
    EXPECT_EQ(std::string(bytes.begin(), bytes.end()), "12345");
    EXPECT_FALSE(ReadWholeFile(L"file", 4, bytes));
    EXPECT_TRUE(bytes.empty());
    EXPECT_FALSE(ReadWholeFile(L"missing", 100, bytes));
    EXPECT_FALSE(ReadWholeFile(L"\\", 100, bytes));
    EXPECT_FALSE(ReadWholeFile(nullptr, 100, bytes));
}

}  // namespace
}  // namespace korvane
