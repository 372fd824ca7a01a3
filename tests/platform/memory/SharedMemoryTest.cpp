#include <atomic>
#include <csignal>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include "platform/DeviceKey.h"
#include "platform/SharedMemory.h"
#include "platform/Simulation.h"

#include "tests/platform/DeviceFolder.h"
#include "tests/support/ForkedProcess.h"

namespace korvane {
namespace {

namespace fs = std::filesystem;
using test::ForkedProcess;
using test::Gate;

constexpr wchar_t kName[] = L"state";

/// A scratch device whose memory goes with it.
class SharedMemory : public testing::Test {
  protected:
    ~SharedMemory() override {
        // Another device may have been in use since.
        SetDeviceRoot(device.Path());
        RemoveSharedMemory();
    }

    static unsigned char* Map(std::size_t size, const std::function<void(void*)>& fill = nullptr) {
        return static_cast<unsigned char*>(MapSharedMemory(kName, size, fill));
    }

    /// The file as which the system shows the region.
    static std::string ObjectFile() { return "/dev/shm/korvane-" + DeviceKey() + "-memory-state"; }

    static void WriteObject(const std::string& contents) {
        std::ofstream(ObjectFile(), std::ios::binary) << contents;
    }

    static std::string ReadObject() {
        std::ifstream file(ObjectFile(), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    DeviceFolder device;
};

TEST_F(SharedMemory, StartsZeroedAndOutlivesTheProcessThatMadeIt) {
    ForkedProcess maker([] {
        unsigned char* const bytes = Map(100);
        if (!bytes)
            return 1;
        for (int i = 0; i < 100; ++i) {
            if (bytes[i] != 0)
                return 2;
        }
        bytes[0] = 7;
        bytes[99] = 9;
        return 0;
    });
    ASSERT_EQ(maker.Wait(), 0);
    const unsigned char* const bytes = Map(100);
    ASSERT_NE(bytes, nullptr);
    EXPECT_EQ(bytes[0], 7);
    EXPECT_EQ(bytes[99], 9);
}

TEST_F(SharedMemory, ShowsAtOnceWhatAnotherProcessWrites) {
    Gate written;
    ForkedProcess writer([&written] {
        unsigned char* const bytes = Map(1);
        if (!bytes)
            return 1;
        bytes[0] = 42;
        written.Open();
        return 0;
    });
    const volatile unsigned char* const bytes = Map(1);
    ASSERT_NE(bytes, nullptr);
    ASSERT_TRUE(written.Wait());
    EXPECT_EQ(bytes[0], 42);
}

TEST_F(SharedMemory, StaysAtItsAddressAndOnItsBoundary) {
    const unsigned char* const bytes = Map(500);
    ASSERT_NE(bytes, nullptr);
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(bytes) % 64, 0u);
    EXPECT_EQ(Map(500), bytes);
    EXPECT_EQ(Map(1), bytes);
    {
        const DeviceFolder other;
        EXPECT_NE(Map(500), bytes);
        RemoveSharedMemory();
    }
    SetDeviceRoot(device.Path());
    EXPECT_EQ(Map(500), bytes);
}

TEST_F(SharedMemory, IsFilledOnceHoweverManyProcessesStartAtOnce) {
    constexpr int kProcesses = 20;
    const Gate start;
    std::vector<std::unique_ptr<ForkedProcess>> processes;
    for (int i = 0; i < kProcesses; ++i) {
        processes.push_back(std::make_unique<ForkedProcess>([&start] {
            if (!start.Wait())
                return 100;
            const unsigned char* const bytes = Map(2, [](void* fresh) {
                auto* const count = static_cast<unsigned char*>(fresh);
                ++count[0];
                std::this_thread::yield();
                count[1] = 55;
            });
            return bytes && bytes[1] == 55 ? bytes[0] : 101;
        }));
    }
    start.Open(kProcesses);
    for (const auto& process : processes)
        EXPECT_EQ(process->Wait(), 1);
}

TEST_F(SharedMemory, IsFilledOnceHoweverManyThreadsStartAtOnce) {
    std::atomic<int> fills{0};
    std::vector<void*> addresses(8);
    std::vector<std::thread> threads;
    for (void*& address : addresses)
        threads.emplace_back([&fills, &address] { address = Map(64, [&fills](void*) { ++fills; }); });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(fills, 1);
    for (void* const address : addresses)
        EXPECT_EQ(address, addresses[0]);
    EXPECT_NE(addresses[0], nullptr);
}

TEST_F(SharedMemory, IsFilledAnewWhenTheProcessDiesThatFillsIt) {
    ForkedProcess maker([] {
        Map(10, [](void* fresh) {
            std::memset(fresh, 0xEE, 10);
            raise(SIGKILL);
        });
        return 0;
    });
    ASSERT_EQ(maker.Wait(), -SIGKILL);
    bool filled = false;
    const unsigned char* const bytes = Map(20, [&filled](void* fresh) {
        filled = true;
        EXPECT_EQ(std::string(static_cast<char*>(fresh), 20), std::string(20, '\0'));
    });
    EXPECT_NE(bytes, nullptr);
    EXPECT_TRUE(filled);
}

TEST_F(SharedMemory, MayMapAnotherRegionWhileItIsFilled) {
    void* inner = nullptr;
    EXPECT_NE(Map(10, [&inner](void*) { inner = MapSharedMemory(L"inner", 10, nullptr); }), nullptr);
    EXPECT_NE(inner, nullptr);
}

TEST_F(SharedMemory, IsRefusedToWhoAsksForMoreThanItHas) {
    ForkedProcess maker([] { return Map(100) ? 0 : 1; });
    ASSERT_EQ(maker.Wait(), 0);
    EXPECT_EQ(Map(101), nullptr);
    EXPECT_NE(Map(100), nullptr);
    EXPECT_EQ(Map(101), nullptr) << "also when it is mapped";
}

TEST_F(SharedMemory, IsWholeForWhoAsksForLessFirst) {
    ForkedProcess maker([] { return Map(100) ? 0 : 1; });
    ASSERT_EQ(maker.Wait(), 0);
    const unsigned char* const bytes = Map(10);
    ASSERT_NE(bytes, nullptr);
    EXPECT_EQ(Map(100), bytes);
}

TEST_F(SharedMemory, IsTheOwnersOnly) {
    const mode_t before = umask(0);
    ASSERT_NE(Map(10), nullptr);
    umask(before);
    struct stat status = {};
    ASSERT_EQ(stat(ObjectFile().c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600u);

    chmod(ObjectFile().c_str(), 0666);
    ForkedProcess other([] { return MapSharedMemory(L"other", 1, nullptr) ? 0 : 1; });
    ASSERT_EQ(other.Wait(), 0);
}

TEST_F(SharedMemory, IsClosedToOthersByWhoeverOpensIt) {
    WriteObject("");
    chmod(ObjectFile().c_str(), 0666);
    ASSERT_NE(Map(10), nullptr);
    struct stat status = {};
    ASSERT_EQ(stat(ObjectFile().c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600u);
}

TEST_F(SharedMemory, OfAnotherUserIsRefused) {
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can give files away";
    WriteObject("");
    ASSERT_EQ(chown(ObjectFile().c_str(), 12345, 12345), 0);
    chmod(ObjectFile().c_str(), 0666);
    EXPECT_EQ(Map(10), nullptr);
    EXPECT_EQ(ReadObject(), "");
}

TEST_F(SharedMemory, LeavesAloneWhatItDidNotMake) {
    const std::string longText(1000, 'x');
    for (const std::string& contents : {std::string("x"), longText}) {
        WriteObject(contents);
        EXPECT_EQ(Map(10), nullptr);
        EXPECT_EQ(ReadObject(), contents);
    }
}

TEST_F(SharedMemory, ThatWasCutShortIsRefused) {
    ForkedProcess maker([] { return Map(5000) ? 0 : 1; });
    ASSERT_EQ(maker.Wait(), 0);
    for (const int size : {5063, 100, 64, 16, 3}) {
        ASSERT_EQ(truncate(ObjectFile().c_str(), size), 0);
        EXPECT_EQ(Map(5000), nullptr) << size;
        EXPECT_EQ(Map(1), nullptr) << size;
    }
}

TEST_F(SharedMemory, IsNotLookedForBehindALink) {
    device.Write("elsewhere", "");
    fs::create_symlink(device.Path() + "/elsewhere", ObjectFile());
    EXPECT_EQ(Map(10), nullptr);
    EXPECT_EQ(device.Read("elsewhere"), "");
}

TEST_F(SharedMemory, ThatDoesNotFitIsRefusedBeforeItIsWrittenTo) {
    ForkedProcess process([] {
        signal(SIGXFSZ, SIG_IGN);
        rlimit limit = {4096, 4096};
        setrlimit(RLIMIT_FSIZE, &limit);
        if (Map(8192))
            return 1;
        return Map(1000) ? 0 : 2;
    });
    EXPECT_EQ(process.Wait(), 0);
}

TEST_F(SharedMemory, RefusesNamesAndSizesThatAreNone) {
    const std::wstring longest(64, L'n');
    const std::wstring tooLong(65, L'n');
    EXPECT_NE(MapSharedMemory(longest.c_str(), 1, nullptr), nullptr);
    EXPECT_NE(MapSharedMemory(L"Az09-_", 1, nullptr), nullptr);
    for (const wchar_t* const name : {L"", L"a/b", L"..", L"a b", L"\u00E4", tooLong.c_str()})
        EXPECT_EQ(MapSharedMemory(name, 1, nullptr), nullptr);
    EXPECT_EQ(MapSharedMemory(nullptr, 1, nullptr), nullptr);
    EXPECT_EQ(Map(0), nullptr);
    EXPECT_EQ(Map((std::size_t{16} << 20) + 1), nullptr);
    EXPECT_EQ(Map(~std::size_t{0}), nullptr);
    EXPECT_NE(Map(std::size_t{16} << 20), nullptr);
}

TEST_F(SharedMemory, GoesWithItsDeviceAndNoOther) {
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
