#include <atomic>
#include <cstring>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "tests/platform/memory/MemoryDevice.h"
#include "tests/support/OtherProcess.h"

namespace korvane {
namespace {

using test::AwaitTest;
using test::OtherProcess;
using test::Role;
using test::TellTest;

using SharedMemory = MemoryDevice;

/// Makes a region of 100 bytes, marks its ends, and keeps it until the test ends the process.
const Role makeRegion("MakeRegion", [](const Role::Words&) {
    unsigned char* const bytes = MemoryDevice::Map(100);
    bool isZero = bytes != nullptr;
    for (int i = 0; isZero && i < 100; ++i)
        isZero = bytes[i] == 0;
    if (isZero) {
        bytes[0] = 7;
        bytes[99] = 9;
    }
    TellTest(isZero ? "made" : "failed");
    AwaitTest();
    return 0;
});

const Role writeByte("WriteByte", [](const Role::Words&) {
    unsigned char* const bytes = MemoryDevice::Map(1);
    if (!bytes)
        return 1;
    bytes[0] = 42;
    return 0;
});

/// Says how often the region was filled, as soon as the test lets it look.
const Role countFills("CountFills", [](const Role::Words&) {
    TellTest("ready");
    AwaitTest();
    const unsigned char* const bytes = MemoryDevice::Map(2, [](void* fresh) {
        auto* const count = static_cast<unsigned char*>(fresh);
        ++count[0];
        std::this_thread::yield();
        count[1] = 55;
    });
    TellTest(bytes && bytes[1] == 55 ? std::to_string(bytes[0]) : "failed");
    AwaitTest();
    return 0;
});

const Role dieFilling("DieFilling", [](const Role::Words&) {
    MemoryDevice::Map(10, [](void* fresh) {
        std::memset(fresh, 0xEE, 10);
        test::KillThisProcess();
    });
    return 0;
});

/// Its exit status is the first byte of the region.
const Role readByte("ReadByte", [](const Role::Words&) {
    const unsigned char* const bytes = MemoryDevice::Map(1);
    return bytes ? int{bytes[0]} : 255;
});

TEST_F(SharedMemory, StartsZeroedAndIsThatOfWhoMadeIt) {
    OtherProcess maker(makeRegion);
    ASSERT_EQ(maker.Hear(), "made");
    const unsigned char* const bytes = Map(100);
    ASSERT_NE(bytes, nullptr);
    EXPECT_EQ(bytes[0], 7);
    EXPECT_EQ(bytes[99], 9);
}

TEST_F(SharedMemory, OutlivesItsMakerInWhoMappedIt) {
    OtherProcess maker(makeRegion);
    ASSERT_EQ(maker.Hear(), "made");
    ASSERT_NE(Map(100), nullptr);
    maker.Kill();
    EXPECT_EQ(OtherProcess(readByte).Wait(), 7);
}

TEST_F(SharedMemory, ShowsAtOnceWhatAnotherProcessWrites) {
    const volatile unsigned char* const bytes = Map(1);
    ASSERT_NE(bytes, nullptr);
    ASSERT_EQ(OtherProcess(writeByte).Wait(), 0);
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
    std::vector<std::unique_ptr<OtherProcess>> processes;
    for (int i = 0; i < kProcesses; ++i)
        processes.push_back(std::make_unique<OtherProcess>(countFills));
    for (const auto& process : processes)
        ASSERT_EQ(process->Hear(), "ready");
    for (const auto& process : processes)
        process->Say("go");
    for (const auto& process : processes)
        EXPECT_EQ(process->Hear(), "1");
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
    OtherProcess maker(dieFilling);
    ASSERT_EQ(maker.Wait(), OtherProcess::kKilled);
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
    OtherProcess maker(makeRegion);
    ASSERT_EQ(maker.Hear(), "made");
    EXPECT_EQ(Map(101), nullptr);
    EXPECT_EQ(Map(5000), nullptr);
    EXPECT_NE(Map(100), nullptr);
    EXPECT_EQ(Map(101), nullptr) << "also when it is mapped";
}

TEST_F(SharedMemory, IsWholeForWhoAsksForLessFirst) {
    OtherProcess maker(makeRegion);
    ASSERT_EQ(maker.Hear(), "made");
    const unsigned char* const bytes = Map(10);
    ASSERT_NE(bytes, nullptr);
    EXPECT_EQ(Map(100), bytes);
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

TEST_F(SharedMemory, ThatWasRemovedIsNotThatOfNewProcesses) {
    unsigned char* const bytes = Map(10);
    ASSERT_NE(bytes, nullptr);
    bytes[0] = 42;
    RemoveSharedMemory();
    EXPECT_EQ(OtherProcess(readByte).Wait(), 0);
    EXPECT_EQ(bytes[0], 42) << "who has it keeps it";
}

TEST_F(SharedMemory, GoesWithItsDeviceAndNoOther) {
    unsigned char* const bytes = Map(10);
    ASSERT_NE(bytes, nullptr);
    bytes[0] = 42;
    {
        const DeviceFolder other;
        ASSERT_NE(Map(10), nullptr);
        EXPECT_EQ(OtherProcess(readByte).Wait(), 0);
        RemoveSharedMemory();
    }
    SetDeviceRoot(device.Path());
    EXPECT_EQ(OtherProcess(readByte).Wait(), 42);
}

}  // namespace
}  // namespace korvane
