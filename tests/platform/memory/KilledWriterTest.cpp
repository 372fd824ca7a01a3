#include <filesystem>
#include <gtest/gtest.h>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include "platform/Files.h"

#include "tests/platform/DeviceFolder.h"
#include "tests/support/OtherProcess.h"

namespace korvane {
namespace {

using test::AwaitTest;
using test::OtherProcess;
using test::Role;
using test::TellTest;

constexpr std::size_t kLongSize = std::size_t{2} << 20;

bool Replace(const std::string& contents) {
    return ReplaceFileAtomically(L"\\settings.ini", contents.data(), contents.size());
}

std::ptrdiff_t FilesIn(const DeviceFolder& device) {
    const std::filesystem::directory_iterator folder(std::filesystem::u8path(device.Path()));
    return std::distance(begin(folder), end(folder));
}

const Role writeForEver("WriteForEver", [](const Role::Words&) {
    const std::string contents(kLongSize, 'x');
    TellTest("writing");
    while (Replace(contents)) {
    }
    return 1;
});

const Role writeForty("WriteForty", [](const Role::Words& words) {
    TellTest("ready");
    AwaitTest();
    for (int round = 0; round < 40; ++round) {
        if (!Replace(std::string(2000, words.at(0).at(0))))
            return 1;
    }
    return 0;
});

TEST(KilledWriter, LeavesAWholeFileAndNothingThatTheNextWriterDoesNotClearAway) {
    const DeviceFolder device;
    ASSERT_TRUE(Replace("old"));
    for (int round = 0; round < 10; ++round) {
        OtherProcess writer(writeForEver);
        ASSERT_EQ(writer.Hear(), "writing");
        // Long enough, now and then, for a whole one.
        for (int i = 0; i < round; ++i)
            FilesIn(device);
        writer.Kill();
        const std::string contents = device.Read("settings.ini");
        EXPECT_TRUE(contents == "old" || contents == std::string(kLongSize, 'x')) << contents.size();
        EXPECT_LE(FilesIn(device), 2) << "what the last one had written";
    }
    ASSERT_TRUE(Replace("new"));
    EXPECT_EQ(device.Read("settings.ini"), "new");
    EXPECT_EQ(FilesIn(device), 1);
}

TEST(KilledWriter, DoesNotHoldUpWritersThatAreAtWorkAtOnce) {
    constexpr int kWriters = 8;
    const DeviceFolder device;
    std::vector<std::unique_ptr<OtherProcess>> writers;
    for (int i = 0; i < kWriters; ++i) {
        const std::string letter(1, static_cast<char>('a' + i));
        writers.push_back(std::make_unique<OtherProcess>(writeForty, Role::Words{letter}));
        ASSERT_EQ(writers.back()->Hear(), "ready");
    }
    for (const auto& writer : writers)
        writer->Say("go");
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
