#include <gtest/gtest.h>
#include <limits>
#include <string>

#include "platform/coredll.h"

namespace korvane {
namespace {

std::wstring Written(int value, int radix = 10) {
    wchar_t text[40];
    EXPECT_EQ(_itow(value, text, radix), text);
    return text;
}

TEST(Numbers, AreWrittenInEveryRadix) {
    EXPECT_EQ(Written(0), L"0");
    EXPECT_EQ(Written(-17), L"-17");
    EXPECT_EQ(Written(std::numeric_limits<int>::max()), L"2147483647");
    EXPECT_EQ(Written(std::numeric_limits<int>::min()), L"-2147483648");
    EXPECT_EQ(Written(255, 16), L"ff");
    EXPECT_EQ(Written(-1, 16), L"ffffffff");
    EXPECT_EQ(Written(-1, 2), std::wstring(32, L'1'));
    EXPECT_EQ(Written(35, 36), L"z");
}

TEST(Numbers, AreReadFromTheStartOfAText) {
    EXPECT_EQ(_wtol(L"42"), 42);
    EXPECT_EQ(_wtol(L" \t\n-42abc"), -42);
    EXPECT_EQ(_wtol(L"+7,8"), 7);
    EXPECT_EQ(_wtol(L""), 0);
    EXPECT_EQ(_wtol(L"- 5"), 0);
    EXPECT_EQ(_wtol(L"x1"), 0);
    EXPECT_EQ(_wtol(L"2147483647"), 2147483647);
    EXPECT_EQ(_wtol(L"-2147483648"), std::numeric_limits<LONG>::min());
}

TEST(Numbers, StopAtTheLimitsOfTheirWidth) {
    EXPECT_EQ(_wtol(L"2147483648"), std::numeric_limits<LONG>::max());
    EXPECT_EQ(_wtol(L"-2147483649"), std::numeric_limits<LONG>::min());
    EXPECT_EQ(_wtol(std::wstring(5000, L'9').c_str()), std::numeric_limits<LONG>::max());
}

}  // namespace
}  // namespace korvane
