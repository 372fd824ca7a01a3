#include <climits>
#include <gtest/gtest.h>
#include <ostream>
#include <tuple>

#include "engine/system/DateTime.h"
#include "platform/Simulation.h"

namespace {

using Fields = std::tuple<int, int, int, int, int, int>;

Fields FieldsOf(const CLQDateTime& time) {
    return {time.year(), time.month(), time.day(), time.hour(), time.minute(), time.second()};
}

std::wstring At(int hour, int minute, int second, const wchar_t* format) {
    return CLQDateTime(2024, 5, 6, hour, minute, second).toTimeString(format);
}

class LocalClock : public testing::Test {
  protected:
    ~LocalClock() override { korvane::UseSystemClock(); }
    static void Start(WORD year, WORD month, WORD day, WORD hour, WORD minute, WORD second) {
        SYSTEMTIME time = {};
        time.wYear = year;
        time.wMonth = month;
        time.wDay = day;
        time.wHour = hour;
        time.wMinute = minute;
        time.wSecond = second;
        korvane::UseManualClock(0, time);
    }
};

}  // namespace

TEST(DateTime, StartsAtTheFirstSecondOf1970) {
    EXPECT_EQ(FieldsOf(CLQDateTime()), Fields(1970, 1, 1, 0, 0, 0));
}

TEST(DateTime, BringsFieldsIntoTheirRange) {
    EXPECT_EQ(FieldsOf(CLQDateTime(INT_MIN, INT_MIN, INT_MIN, INT_MIN, INT_MIN, INT_MIN)),
              Fields(1, 1, 1, 0, 0, 0));
    EXPECT_EQ(FieldsOf(CLQDateTime(INT_MAX, INT_MAX, INT_MAX, INT_MAX, INT_MAX, INT_MAX)),
              Fields(9999, 12, 31, 23, 59, 59));
    EXPECT_EQ(FieldsOf(CLQDateTime(2024, 4, 31, 24, 60, 60)), Fields(2024, 4, 30, 23, 59, 59));
}

TEST(DateTime, KnowsTheLeapDay) {
    EXPECT_EQ(CLQDateTime(2024, 2, 30, 0, 0, 0).day(), 29);
    EXPECT_EQ(CLQDateTime(2023, 2, 29, 0, 0, 0).day(), 28);
    EXPECT_EQ(CLQDateTime(1900, 2, 29, 0, 0, 0).day(), 28);
    EXPECT_EQ(CLQDateTime(2000, 2, 29, 0, 0, 0).day(), 29);
}

TEST(DateTime, WritesTwentyFourHours) {
    EXPECT_EQ(At(0, 0, 0, L"HH:mm"), L"00:00");
    EXPECT_EQ(At(9, 5, 0, L"HH:mm"), L"09:05");
    EXPECT_EQ(At(23, 59, 7, L"HH:mm:ss"), L"23:59:07");
    EXPECT_EQ(At(9, 5, 7, L"H:m:s"), L"9:5:7");
}

TEST(DateTime, WritesTwelveHoursWithTheDayHalf) {
    EXPECT_EQ(At(9, 5, 0, L"hh:mmtt"), L"09:05AM");
    EXPECT_EQ(At(21, 5, 0, L"hh:mmtt"), L"09:05PM");
    EXPECT_EQ(At(21, 5, 0, L"h:mm tt"), L"9:05 PM");
}

TEST(DateTime, CallsMidnightAndNoonTwelve) {
    EXPECT_EQ(At(0, 0, 0, L"hh:mmtt"), L"12:00AM");
    EXPECT_EQ(At(0, 59, 59, L"h:mmtt"), L"12:59AM");
    EXPECT_EQ(At(1, 0, 0, L"hh:mmtt"), L"01:00AM");
    EXPECT_EQ(At(11, 59, 59, L"hh:mmtt"), L"11:59AM");
    EXPECT_EQ(At(12, 0, 0, L"hh:mmtt"), L"12:00PM");
    EXPECT_EQ(At(13, 0, 0, L"hh:mmtt"), L"01:00PM");
}

TEST(DateTime, KeepsLiteralCharactersOfThePattern) {
    EXPECT_EQ(At(9, 5, 0, L""), L"");
    EXPECT_EQ(At(9, 5, 0, L" [HH.mm]\u65F6 t x"), L" [09.05]\u65F6 t x");
}

TEST(DateTime, QuotesBetweenApostrophes) {
    EXPECT_EQ(At(9, 5, 0, L"HH' h 'mm' m'"), L"09 h 05 m");
    EXPECT_EQ(At(9, 5, 0, L"HH''mm"), L"09'05");
    EXPECT_EQ(At(9, 5, 0, L"'o''clock' H"), L"o'clock 9");
    EXPECT_EQ(At(9, 5, 0, L"H 'never closed mm"), L"9 never closed mm");
    EXPECT_EQ(At(9, 5, 0, L"H'"), L"9");
    EXPECT_EQ(At(9, 5, 0, L"'H'"), L"H");
}

TEST(DateTime, TakesRunsOfALetterInPairs) {
    EXPECT_EQ(At(9, 5, 0, L"HHH"), L"099");
    EXPECT_EQ(At(9, 5, 0, L"ttt"), L"AMt");
}

TEST_F(LocalClock, GivesTheLocalTime) {
    Start(2024, 5, 6, 7, 8, 9);
    EXPECT_EQ(FieldsOf(CLQDateTime::now()), Fields(2024, 5, 6, 7, 8, 9));
}

TEST_F(LocalClock, PassesMidnightIntoTheLeapDayAndOutOfIt) {
    Start(2024, 2, 28, 23, 59, 59);
    korvane::AdvanceClock(1000);
    EXPECT_EQ(FieldsOf(CLQDateTime::now()), Fields(2024, 2, 29, 0, 0, 0));
    korvane::AdvanceClock(24u * 60 * 60 * 1000);
    EXPECT_EQ(FieldsOf(CLQDateTime::now()), Fields(2024, 3, 1, 0, 0, 0));
}

TEST_F(LocalClock, PassesIntoTheNextYear) {
    Start(2023, 12, 31, 23, 59, 59);
    korvane::AdvanceClock(999);
    EXPECT_EQ(CLQDateTime::now().toTimeString(L"HH:mm:ss"), L"23:59:59");
    korvane::AdvanceClock(1);
    EXPECT_EQ(FieldsOf(CLQDateTime::now()), Fields(2024, 1, 1, 0, 0, 0));
}

TEST_F(LocalClock, PassesNoon) {
    Start(2024, 5, 6, 11, 59, 0);
    EXPECT_EQ(CLQDateTime::now().toTimeString(L"hh:mmtt"), L"11:59AM");
    korvane::AdvanceClock(60 * 1000);
    EXPECT_EQ(CLQDateTime::now().toTimeString(L"hh:mmtt"), L"12:00PM");
}
