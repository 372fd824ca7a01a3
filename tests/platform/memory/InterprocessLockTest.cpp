#include <chrono>
#include <csignal>
#include <gtest/gtest.h>
#include <memory>
#include <unistd.h>
#include <vector>

#include "platform/InterprocessLock.h"
#include "platform/SharedMemory.h"
#include "platform/Simulation.h"

#include "tests/platform/DeviceFolder.h"
#include "tests/support/ForkedProcess.h"

namespace korvane {
namespace {

using test::ForkedProcess;
using test::Gate;

constexpr wchar_t kName[] = L"setup";
constexpr unsigned kLong = 10000;

class InterprocessLocks : public testing::Test {
  protected:
    ~InterprocessLocks() override {
        // Another device may have been in use since.
        SetDeviceRoot(device.Path());
        RemoveSharedMemory();
    }

    DeviceFolder device;
};

TEST_F(InterprocessLocks, AreHeldByOneAtATime) {
    auto first = std::make_unique<InterprocessLock>(kName, 0);
    EXPECT_TRUE(first->IsHeld());
    EXPECT_FALSE(InterprocessLock(kName, 0).IsHeld());
    first.reset();
    EXPECT_TRUE(InterprocessLock(kName, 0).IsHeld());
}

TEST_F(InterprocessLocks, KeepOtherProcessesOutUntilTheirHolderIsKilled) {
    const Gate held;
    const Gate never;
    ForkedProcess holder([&] {
        const InterprocessLock lock(kName, 0);
        held.Open();
        never.Wait();
        return 0;
    });
    ASSERT_TRUE(held.Wait());
    EXPECT_FALSE(InterprocessLock(kName, 0).IsHeld());
    holder.Kill();
    EXPECT_TRUE(InterprocessLock(kName, 0).IsHeld());
}

TEST_F(InterprocessLocks, AreWaitedFor) {
    const Gate held;
    const Gate enough;
    ForkedProcess holder([&] {
        const InterprocessLock lock(kName, 0);
        held.Open();
        enough.Wait();
        return lock.IsHeld() ? 0 : 1;
    });
    ASSERT_TRUE(held.Wait());
    enough.Open();
    EXPECT_TRUE(InterprocessLock(kName, kLong).IsHeld());
    EXPECT_EQ(holder.Wait(), 0);
}

TEST_F(InterprocessLocks, AreWaitedForNoLongerThanAsked) {
    const InterprocessLock lock(kName, 0);
    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(InterprocessLock(kName, 20).IsHeld());
    const auto waited = std::chrono::steady_clock::now() - start;
    EXPECT_GE(waited, std::chrono::milliseconds(20));
    EXPECT_LT(waited, std::chrono::seconds(5));
}

TEST_F(InterprocessLocks, LetNoCountGetLost) {
    constexpr int kProcesses = 8;
    constexpr int kRounds = 100;
    auto* const count = static_cast<volatile int*>(MapSharedMemory(L"count", sizeof(int), nullptr));
    ASSERT_NE(count, nullptr);
    std::vector<std::unique_ptr<ForkedProcess>> processes;
    for (int i = 0; i < kProcesses; ++i) {
        processes.push_back(std::make_unique<ForkedProcess>([count] {
            for (int round = 0; round < kRounds; ++round) {
                const InterprocessLock lock(kName, kLong);
                if (!lock.IsHeld())
                    return 1;
                const int seen = *count;
                usleep(0);
                *count = seen + 1;
            }
            return 0;
        }));
    }
    for (const auto& process : processes)
        EXPECT_EQ(process->Wait(), 0);
    EXPECT_EQ(*count, kProcesses * kRounds);
}

TEST_F(InterprocessLocks, PassNobodyByWhoWaitsWhileAnotherTakesThemAgainAndAgain) {
    constexpr int kRounds = 20;
    auto* const holds = static_cast<volatile int*>(MapSharedMemory(L"holds", sizeof(int), nullptr));
    ASSERT_NE(holds, nullptr);
    const Gate held;
    ForkedProcess greedy([&] {
        for (bool first = true;; first = false) {
            const InterprocessLock lock(kName, kLong);
            *holds = *holds + 1;
            if (first)
                held.Open();
            usleep(1000);
        }
        return 0;
    });
    ASSERT_TRUE(held.Wait());
    int passedBy = 0;
    for (int round = 0; round < kRounds; ++round) {
        int before = *holds;
        while (*holds == before)
            usleep(100);
        before = *holds;
        const InterprocessLock lock(kName, kLong);
        ASSERT_TRUE(lock.IsHeld());
        passedBy += *holds - before;
    }
    EXPECT_LE(passedBy, 4 * kRounds);
}

TEST_F(InterprocessLocks, OfOtherNamesAndDevicesAreOthers) {
    const InterprocessLock lock(kName, 0);
    ASSERT_TRUE(lock.IsHeld());
    EXPECT_TRUE(InterprocessLock(L"other", 0).IsHeld());
    EXPECT_NE(MapSharedMemory(kName, 10, nullptr), nullptr) << "a region of the name";
    const DeviceFolder other;
    EXPECT_TRUE(InterprocessLock(kName, 0).IsHeld());
    RemoveSharedMemory();
}

TEST_F(InterprocessLocks, AreNotHeldUnderNamesThatAreNone) {
    EXPECT_FALSE(InterprocessLock(nullptr, 0).IsHeld());
    EXPECT_FALSE(InterprocessLock(L"", 0).IsHeld());
    EXPECT_FALSE(InterprocessLock(L"a/b", 0).IsHeld());
}

TEST_F(InterprocessLocks, AreHeldAfterTheirObjectWasRemovedWhileSomebodyWaits) {
    auto first = std::make_unique<InterprocessLock>(kName, 0);
    const Gate held;
    ForkedProcess waiter([&] {
        const InterprocessLock lock(kName, kLong);
        if (!lock.IsHeld())
            return 1;
        return InterprocessLock(kName, 0).IsHeld() ? 2 : 0;
    });
    RemoveSharedMemory();
    first.reset();
    EXPECT_EQ(waiter.Wait(), 0);
}

}  // namespace
}  // namespace korvane
