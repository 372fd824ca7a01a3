#include <chrono>
#include <gtest/gtest.h>
#include <memory>
#include <thread>
#include <vector>

#include "platform/InterprocessLock.h"
#include "platform/SharedMemory.h"
#include "platform/Simulation.h"

#include "tests/platform/memory/MemoryDevice.h"
#include "tests/support/OtherProcess.h"

namespace korvane {
namespace {

using test::AwaitTest;
using test::OtherProcess;
using test::Role;
using test::TellTest;

constexpr wchar_t kName[] = L"setup";
constexpr unsigned kLong = 10000;
constexpr int kRounds = 100;

volatile int* MapCount() {
    return static_cast<volatile int*>(MapSharedMemory(L"count", sizeof(int), nullptr));
}

const Role holdLock("HoldLock", [](const Role::Words&) {
    const InterprocessLock lock(kName, 0);
    TellTest(lock.IsHeld() ? "held" : "failed");
    AwaitTest();
    return 0;
});

const Role countUp("CountUp", [](const Role::Words&) {
    volatile int* const count = MapCount();
    for (int round = 0; count && round < kRounds; ++round) {
        const InterprocessLock lock(kName, kLong);
        if (!lock.IsHeld())
            return 1;
        const int seen = *count;
        std::this_thread::yield();
        *count = seen + 1;
    }
    return count ? 0 : 2;
});

const Role takeAgainAndAgain("TakeAgainAndAgain", [](const Role::Words&) {
    volatile int* const holds = MapCount();
    for (bool first = true; holds; first = false) {
        const InterprocessLock lock(kName, kLong);
        *holds = *holds + 1;
        if (first)
            TellTest("held");
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return 1;
});

const Role waitForLock("WaitForLock", [](const Role::Words&) {
    TellTest("waiting");
    const InterprocessLock lock(kName, kLong);
    if (!lock.IsHeld())
        return 1;
    return InterprocessLock(kName, 0).IsHeld() ? 2 : 0;
});

using InterprocessLocks = MemoryDevice;

TEST_F(InterprocessLocks, AreHeldByOneAtATime) {
    auto first = std::make_unique<InterprocessLock>(kName, 0);
    EXPECT_TRUE(first->IsHeld());
    EXPECT_FALSE(InterprocessLock(kName, 0).IsHeld());
    first.reset();
    EXPECT_TRUE(InterprocessLock(kName, 0).IsHeld());
}

TEST_F(InterprocessLocks, KeepOtherThreadsOut) {
    auto first = std::make_unique<InterprocessLock>(kName, 0);
    bool heldAtOnce = true;
    std::thread([&heldAtOnce] { heldAtOnce = InterprocessLock(kName, 0).IsHeld(); }).join();
    EXPECT_FALSE(heldAtOnce);
    bool heldAtLast = false;
    std::thread waiting([&heldAtLast] { heldAtLast = InterprocessLock(kName, kLong).IsHeld(); });
    first.reset();
    waiting.join();
    EXPECT_TRUE(heldAtLast);
}

TEST_F(InterprocessLocks, KeepOtherProcessesOutUntilTheirHolderIsKilled) {
    OtherProcess holder(holdLock);
    ASSERT_EQ(holder.Hear(), "held");
    EXPECT_FALSE(InterprocessLock(kName, 0).IsHeld());
    holder.Kill();
    EXPECT_TRUE(InterprocessLock(kName, 0).IsHeld());
}

TEST_F(InterprocessLocks, AreWaitedFor) {
    OtherProcess holder(holdLock);
    ASSERT_EQ(holder.Hear(), "held");
    holder.Say("enough");
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
    const volatile int* const count = MapCount();
    ASSERT_NE(count, nullptr);
    std::vector<std::unique_ptr<OtherProcess>> processes;
    for (int i = 0; i < kProcesses; ++i)
        processes.push_back(std::make_unique<OtherProcess>(countUp));
    for (const auto& process : processes)
        EXPECT_EQ(process->Wait(), 0);
    EXPECT_EQ(*count, kProcesses * kRounds);
}

TEST_F(InterprocessLocks, PassNobodyByWhoWaitsWhileAnotherTakesThemAgainAndAgain) {
    constexpr int kWaits = 20;
    const volatile int* const holds = MapCount();
    ASSERT_NE(holds, nullptr);
    OtherProcess greedy(takeAgainAndAgain);
    ASSERT_EQ(greedy.Hear(), "held");
    int passedBy = 0;
    for (int round = 0; round < kWaits; ++round) {
        int before = *holds;
        while (*holds == before)
            std::this_thread::yield();
        before = *holds;
        const InterprocessLock lock(kName, kLong);
        ASSERT_TRUE(lock.IsHeld());
        passedBy += *holds - before;
    }
    EXPECT_LE(passedBy, 4 * kWaits);
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
    OtherProcess waiter(waitForLock);
    ASSERT_EQ(waiter.Hear(), "waiting");
    RemoveSharedMemory();
    first.reset();
    EXPECT_EQ(waiter.Wait(), 0);
}

}  // namespace
}  // namespace korvane
