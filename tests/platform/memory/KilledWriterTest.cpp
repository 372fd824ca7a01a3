#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <iterator>
#include <memory>
#include <string>
#include <sys/resource.h>
#include <vector>

#include "platform/Files.h"

#include "tests/platform/DeviceFolder.h"
#include "tests/support/ForkedProcess.h"

namespace korvane {
namespace {

using test::ForkedProcess;
using test::Gate;

bool Replace(const std::string& contents) {
    return ReplaceFileAtomically(L"\\settings.ini", contents.data(), contents.size());
}

std::ptrdiff_t FilesIn(const DeviceFolder& device) {
    const std::filesystem::directory_iterator folder(std::filesystem::u8path(device.Path()));
    return std::distance(begin(folder), end(folder));
}

/// Dies in the middle of a write, since no file may become longer than 1000 bytes.
void DieWriting() {
    ForkedProcess writer([] {
        const rlimit limit = {1000, 1000};
        setrlimit(RLIMIT_FSIZE, &limit);
        signal(SIGXFSZ, SIG_DFL);
        Replace(std::string(5000, 'x'));
        return 0;
    });
    ASSERT_EQ(writer.Wait(), -SIGXFSZ);
}

TEST(KilledWriter, LeavesTheOldFile) {
    const DeviceFolder device;
    ASSERT_TRUE(Replace("old"));
    DieWriting();
    EXPECT_EQ(device.Read("settings.ini"), "old");
}

TEST(KilledWriter, LeavesNothingThatTheNextWriterDoesNotClearAway) {
    const DeviceFolder device;
    for (int i = 0; i < 10; ++i)
        DieWriting();
    EXPECT_EQ(FilesIn(device), 1) << "what the last one had written";
    ASSERT_TRUE(Replace("new"));
    EXPECT_EQ(device.Read("settings.ini"), "new");
    EXPECT_EQ(FilesIn(device), 1);
}

TEST(KilledWriter, DoesNotHoldUpWritersThatAreAtWorkAtOnce) {
    constexpr int kWriters = 8;
    const DeviceFolder device;
    const Gate start;
    std::vector<std::unique_ptr<ForkedProcess>> writers;
    for (int i = 0; i < kWriters; ++i) {
        writers.push_back(std::make_unique<ForkedProcess>([&start, i] {
            if (!start.Wait())
                return 1;
            for (int round = 0; round < 40; ++round) {
                if (!Replace(std::string(2000, static_cast<char>('a' + i))))
                    return 2;
            }
            return 0;
        }));
    }
    start.Open(kWriters);
    for (int round = 0; round < 40; ++round) {
        std::vector<unsigned char> bytes;
        if (!ReadWholeFile(L"settings.ini", 10000, bytes))
            continue;
        ASSERT_EQ(bytes.size(), 2000u);
        ASSERT_EQ(bytes, std::vector<unsigned char>(2000, bytes[0])) << "contents of two writers";
    }
    for (const auto& writer : writers)
        EXPECT_EQ(writer->Wait(), 0);
    EXPECT_EQ(FilesIn(device), 1);
}

}  // namespace
}  // namespace korvane
