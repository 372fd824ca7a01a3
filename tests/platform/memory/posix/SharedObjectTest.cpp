#include <csignal>
#include <filesystem>
#include <fstream>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/DeviceKey.h"

#include "tests/platform/memory/MemoryDevice.h"
#include "tests/support/OtherProcess.h"

namespace korvane {
namespace {

namespace fs = std::filesystem;
using test::OtherProcess;
using test::Role;

/// A device whose region shows as a file of the system.
class SharedObject : public MemoryDevice {
  protected:
    static std::string ObjectFile() { return "/dev/shm/korvane-" + DeviceKey() + "-memory-state"; }

    static void WriteObject(const std::string& contents) {
        std::ofstream(ObjectFile(), std::ios::binary) << contents;
    }

    static std::string ReadObject() {
        std::ifstream file(ObjectFile(), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
};

/// Maps as many bytes as the word says, and marks the first.
const Role mapBytes("MapBytes", [](const Role::Words& words) {
    unsigned char* const bytes = MemoryDevice::Map(std::stoul(words.at(0)));
    if (!bytes)
        return 1;
    bytes[0] = 7;
    return 0;
});

const Role mapMoreThanThereIs("MapMoreThanThereIs", [](const Role::Words&) {
    signal(SIGXFSZ, SIG_IGN);
    const rlimit limit = {4096, 4096};
    setrlimit(RLIMIT_FSIZE, &limit);
    if (MemoryDevice::Map(8192))
        return 1;
    return MemoryDevice::Map(1000) ? 0 : 2;
});

TEST_F(SharedObject, OutlivesTheProcessesThatHadIt) {
    ASSERT_EQ(OtherProcess(mapBytes, {"100"}).Wait(), 0);
    const unsigned char* const bytes = Map(100);
    ASSERT_NE(bytes, nullptr);
    EXPECT_EQ(bytes[0], 7);
}

TEST_F(SharedObject, IsTheOwnersOnly) {
    const mode_t before = umask(0);
    ASSERT_NE(Map(10), nullptr);
    umask(before);
    struct stat status = {};
    ASSERT_EQ(stat(ObjectFile().c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600u);
}

TEST_F(SharedObject, IsClosedToOthersByWhoeverOpensIt) {
    WriteObject("");
    chmod(ObjectFile().c_str(), 0666);
    ASSERT_NE(Map(10), nullptr);
    struct stat status = {};
    ASSERT_EQ(stat(ObjectFile().c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600u);
}

TEST_F(SharedObject, OfAnotherUserIsRefused) {
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can give files away";
    WriteObject("");
    ASSERT_EQ(chown(ObjectFile().c_str(), 12345, 12345), 0);
    chmod(ObjectFile().c_str(), 0666);
    EXPECT_EQ(Map(10), nullptr);
    EXPECT_EQ(ReadObject(), "");
}

TEST_F(SharedObject, ThatNobodyMadeHereIsLeftAlone) {
    const std::string longText(1000, 'x');
    for (const std::string& contents : {std::string("x"), longText}) {
        WriteObject(contents);
        EXPECT_EQ(Map(10), nullptr);
        EXPECT_EQ(ReadObject(), contents);
    }
}

TEST_F(SharedObject, ThatWasCutShortIsRefused) {
    ASSERT_EQ(OtherProcess(mapBytes, {"5000"}).Wait(), 0);
    for (const int size : {5063, 100, 64, 16, 3}) {
        ASSERT_EQ(truncate(ObjectFile().c_str(), size), 0);
        EXPECT_EQ(Map(5000), nullptr) << size;
        EXPECT_EQ(Map(1), nullptr) << size;
    }
}

TEST_F(SharedObject, IsNotLookedForBehindALink) {
    device.Write("elsewhere", "");
    fs::create_symlink(device.Path() + "/elsewhere", ObjectFile());
    EXPECT_EQ(Map(10), nullptr);
    EXPECT_EQ(device.Read("elsewhere"), "");
}

TEST_F(SharedObject, ThatDoesNotFitIsRefusedBeforeItIsWrittenTo) {
    EXPECT_EQ(OtherProcess(mapMoreThanThereIs).Wait(), 0);
}

TEST_F(SharedObject, IsRemovedWithItsDeviceAndNoOther) {
    ASSERT_NE(Map(10), nullptr);
    const std::string kept = ObjectFile();
    {
        const DeviceFolder other;
        ASSERT_NE(Map(10), nullptr);
        const std::string removed = ObjectFile();
        ASSERT_TRUE(fs::exists(removed));
        RemoveSharedMemory();
        EXPECT_FALSE(fs::exists(removed));
    }
    SetDeviceRoot(device.Path());
    EXPECT_TRUE(fs::exists(kept));
}

}  // namespace
}  // namespace korvane
