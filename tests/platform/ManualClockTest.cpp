#include <gtest/gtest.h>

#include "tests/platform/StoppedClock.h"
#include "tests/platform/TestWindow.h"

namespace korvane {
namespace {

// The local time `ms` after `start`, as the manual clock tells it: year, month, day, weekday, hour, minute,
// second, millisecond.
std::vector<int> LocalTimeAfter(const SYSTEMTIME& start, unsigned ms) {
    const StoppedClock clock(0, start);
    AdvanceClock(ms);
    SYSTEMTIME now{};
    GetLocalTime(&now);
    return {now.wYear, now.wMonth,  now.wDay,    now.wDayOfWeek,
            now.wHour, now.wMinute, now.wSecond, now.wMilliseconds};
}

bool AreInRange(const std::vector<int>& fields) {
    const std::vector<int> least = {0, 1, 1, 0, 0, 0, 0, 0};
    const std::vector<int> most = {65535, 12, 31, 6, 23, 59, 59, 999};
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (fields[i] < least[i] || fields[i] > most[i])
            return false;
    }
    return true;
}

TEST(ManualClock, StandsStillUntilItIsMoved) {
    const StoppedClock clock(1234);
    EXPECT_TRUE(IsManualClock());
    EXPECT_EQ(GetTickCount(), 1234u);
    AdvanceClock(10);
    EXPECT_EQ(GetTickCount(), 1244u);
    Sleep(80);
    EXPECT_EQ(GetTickCount(), 1324u);
}

TEST(ManualClock, WrapsLikeTheTickCounter) {
    const StoppedClock clock(0xFFFFFFFFu);
    AdvanceClock(1);
    EXPECT_EQ(GetTickCount(), 0u);
    AdvanceClock(0xFFFFFFFFu);
    EXPECT_EQ(GetTickCount(), 0xFFFFFFFFu);
}

TEST(ManualClock, GivesBackToTheSystemsClock) {
    { const StoppedClock clock(5); }
    EXPECT_FALSE(IsManualClock());
    const DWORD before = GetTickCount();
    AdvanceClock(1000000);
    EXPECT_LT(GetTickCount() - before, 1000000u);
}

TEST(ManualClock, StampsMessages) {
    const StoppedClock clock(0xFFFFFFFFu);
    const TestWindow window;
    PostMessageW(window.Handle(), WM_APP, 0, 0);
    AdvanceClock(701);
    MSG message{};
    ASSERT_TRUE(PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE));
    EXPECT_EQ(message.time, 0xFFFFFFFFu);
    EXPECT_EQ(GetTickCount() - message.time, 701u);
}

TEST(ManualClock, HasNoTimeForATone) {
    const StoppedClock clock;
    EXPECT_FALSE(MessageBeep(0));
}

TEST(ManualClock, LeavesARunningTimerWhatItHadLeft) {
    const TestWindow window;
    const StoppedClock clock(1000);
    SetTimer(window.Handle(), 1, 50, nullptr);
    AdvanceClock(30);
    UseManualClock(5, SYSTEMTIME{2000, 1, 0, 1, 0, 0, 0, 0});
    unsigned due = 0;
    ASSERT_TRUE(NextTimerDue(due));
    EXPECT_EQ(due, 20u);
}

TEST(ManualClock, CarriesTheLocalTimeIntoTheLeapDayAndBeyond) {
    EXPECT_EQ(LocalTimeAfter({2024, 2, 0, 28, 23, 59, 59, 999}, 1),
              (std::vector<int>{2024, 2, 29, 4, 0, 0, 0, 0}));
    EXPECT_EQ(LocalTimeAfter({2024, 2, 0, 29, 23, 59, 59, 999}, 1),
              (std::vector<int>{2024, 3, 1, 5, 0, 0, 0, 0}));
    EXPECT_EQ(LocalTimeAfter({2023, 2, 0, 28, 23, 59, 59, 999}, 1),
              (std::vector<int>{2023, 3, 1, 3, 0, 0, 0, 0}));
    EXPECT_EQ(LocalTimeAfter({2100, 2, 0, 28, 23, 59, 59, 999}, 1),
              (std::vector<int>{2100, 3, 1, 1, 0, 0, 0, 0}));
    EXPECT_EQ(LocalTimeAfter({2000, 2, 0, 28, 23, 59, 59, 999}, 1),
              (std::vector<int>{2000, 2, 29, 2, 0, 0, 0, 0}));
}

TEST(ManualClock, CarriesTheLocalTimeIntoANewYear) {
    EXPECT_EQ(LocalTimeAfter({1999, 12, 0, 31, 23, 59, 59, 500}, 1500),
              (std::vector<int>{2000, 1, 1, 6, 0, 0, 1, 0}));
}

TEST(ManualClock, ReturnsTheLocalTimeThatItWasGivenForEveryDayOfFourCenturies) {
    SYSTEMTIME day{1900, 1, 0, 1, 12, 30, 15, 250};
    int weekday = 1;  // a Monday
    for (int i = 0; i < 146097; ++i) {
        UseManualClock(0, day);
        AdvanceClock(24 * 60 * 60 * 1000);
        SYSTEMTIME next{};
        GetLocalTime(&next);
        weekday = (weekday + 1) % 7;
        ASSERT_EQ(next.wDayOfWeek, weekday);
        ASSERT_TRUE(next.wDay == day.wDay + 1 || (next.wDay == 1 && day.wDay >= 28));
        ASSERT_EQ(next.wMilliseconds, 250);
        day = next;
    }
    UseSystemClock();
    EXPECT_EQ(day.wYear, 2300);
    EXPECT_EQ(day.wMonth, 1);
    EXPECT_EQ(day.wDay, 1);
}

TEST(ManualClock, CarriesFieldsBeyondTheirRangeOver) {
    EXPECT_EQ(LocalTimeAfter({2023, 13, 0, 32, 24, 60, 60, 1000}, 0),
              (std::vector<int>{2024, 2, 2, 5, 1, 1, 1, 0}));
    EXPECT_TRUE(AreInRange(LocalTimeAfter({0, 0, 0, 0, 0, 0, 0, 0}, 0)));
    EXPECT_TRUE(AreInRange(LocalTimeAfter({65535, 65535, 0, 65535, 65535, 65535, 65535, 65535}, 0xFFFFFFFF)));
}

TEST(SystemClock, TellsTheLocalTime) {
    SYSTEMTIME now{};
    GetLocalTime(&now);
    EXPECT_GE(now.wYear, 2024);
    EXPECT_GE(now.wMonth, 1);
    EXPECT_LE(now.wMonth, 12);
    EXPECT_LE(now.wHour, 23);
    GetLocalTime(nullptr);
}

}  // namespace
}  // namespace korvane
