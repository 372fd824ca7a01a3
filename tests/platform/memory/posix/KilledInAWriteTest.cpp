#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <sys/resource.h>

#include "platform/Files.h"

#include "tests/platform/DeviceFolder.h"
#include "tests/support/OtherProcess.h"

namespace korvane {
namespace {

using test::OtherProcess;
using test::Role;

bool Replace(const std::string& contents) {
    return ReplaceFileAtomically(L"\\settings.ini", contents.data(), contents.size());
}

std::ptrdiff_t FilesIn(const DeviceFolder& device) {
    const std::filesystem::directory_iterator folder(std::filesystem::u8path(device.Path()));
    return std::distance(begin(folder), end(folder));
}

/// Dies in the middle of a write, since no file may become longer than 1000 bytes.
const Role dieWriting("DieWriting", [](const Role::Words&) {
    const rlimit limit = {1000, 1000};
    setrlimit(RLIMIT_FSIZE, &limit);
    signal(SIGXFSZ, SIG_DFL);
    Replace(std::string(5000, 'x'));
    return 0;
});

TEST(WriterKilledInAWrite, LeavesTheOldFile) {
    const DeviceFolder device;
    ASSERT_TRUE(Replace("old"));
    ASSERT_EQ(OtherProcess(dieWriting).Wait(), -SIGXFSZ);
    EXPECT_EQ(device.Read("settings.ini"), "old");
}

TEST(WriterKilledInAWrite, LeavesNothingThatTheNextWriterDoesNotClearAway) {
    const DeviceFolder device;
    for (int i = 0; i < 10; ++i)
        ASSERT_EQ(OtherProcess(dieWriting).Wait(), -SIGXFSZ);
    EXPECT_EQ(FilesIn(device), 1) << "what the last one had written";
    ASSERT_TRUE(Replace("new"));
    EXPECT_EQ(device.Read("settings.ini"), "new");
    EXPECT_EQ(FilesIn(device), 1);
}

}  // namespace
}  // namespace korvane
