#include <gtest/gtest.h>

#include "platform/CaseFold.h"
#include "platform/Unicode.h"

namespace korvane {
namespace {

const std::wstring kLoneHigh(1, static_cast<wchar_t>(0xD83D));
const std::wstring kLoneLow(1, static_cast<wchar_t>(0xDE00));

TEST(Unicode, ConvertsBothWays) {
    const std::string utf8 = "Zażółć Ελλάδα 中文 日本 😀";
    EXPECT_EQ(FromUtf8(utf8), L"Zażółć Ελλάδα 中文 日本 😀");
    EXPECT_EQ(ToUtf8(FromUtf8(utf8)), utf8);
    EXPECT_EQ(ToUtf8(std::wstring_view(L"a\0b", 3)), std::string("a\0b", 3));
    EXPECT_EQ(FromUtf8(""), L"");
}

TEST(Unicode, JoinsSurrogatePairsWhateverTheWidthOfWchar) {
    EXPECT_EQ(ToUtf8(kLoneHigh + kLoneLow), "😀");
}

TEST(Unicode, ReplacesSurrogatesThatStandAlone) {
    EXPECT_EQ(ToUtf8(kLoneHigh), "\xEF\xBF\xBD");
    EXPECT_EQ(ToUtf8(kLoneLow + L"a"),
              "\xEF\xBF\xBD"
              "a");
    EXPECT_EQ(ToUtf8(kLoneHigh + L"a"),
              "\xEF\xBF\xBD"
              "a");
    EXPECT_EQ(ToUtf8(kLoneHigh + kLoneHigh + kLoneLow), "\xEF\xBF\xBD😀");
}

TEST(Unicode, ReplacesEveryByteThatIsNoUtf8) {
    EXPECT_EQ(FromUtf8("\x80"), L"\xFFFD");
    EXPECT_EQ(FromUtf8("a\xC3"), L"a\xFFFD");
    EXPECT_EQ(FromUtf8("\xC0\xAF"), L"\xFFFD\xFFFD");                      // overlong
    EXPECT_EQ(FromUtf8("\xE0\x80\xAF"), L"\xFFFD\xFFFD\xFFFD");            // overlong
    EXPECT_EQ(FromUtf8("\xED\xA0\x80"), L"\xFFFD\xFFFD\xFFFD");            // a surrogate
    EXPECT_EQ(FromUtf8("\xF4\x90\x80\x80"), L"\xFFFD\xFFFD\xFFFD\xFFFD");  // beyond the last code point
    EXPECT_EQ(FromUtf8("\xFF"
                       "a"),
              L"\xFFFD"
              L"a");
}

TEST(Unicode, StepsThroughCodePoints) {
    const std::wstring text = L"a😀";
    std::size_t at = 0;
    EXPECT_EQ(NextCodePoint(text, at), U'a');
    EXPECT_EQ(NextCodePoint(text, at), U'😀');
    EXPECT_EQ(at, text.size());
}

TEST(Unicode, AppendsOnlyValidCodePoints) {
    std::wstring text;
    AppendCodePoint(text, U'😀');
    AppendCodePoint(text, 0xD800);
    AppendCodePoint(text, 0x110000);
    EXPECT_EQ(text, L"😀\xFFFD\xFFFD");
}

TEST(CaseFold, JoinsTheCasesOfEuropeanLetters) {
    EXPECT_TRUE(EqualFolded(L"ABCXYZ", L"abcxyz"));
    EXPECT_TRUE(EqualFolded(L"ÀÖØÞŸ", L"àöøþÿ"));
    EXPECT_TRUE(EqualFolded(L"ZAŻÓŁĆ GĘŚLĄ JAŹŃ", L"zażółć gęślą jaźń"));
    EXPECT_TRUE(EqualFolded(L"ΆΈΉΊΌΎΏΑΩΫΣ", L"άέήίόύώαωϋς"));
    EXPECT_TRUE(EqualFolded(L"ЁЖЯҐӀӁ", L"ёжяґӏӂ"));
    EXPECT_TRUE(EqualFolded(L"ＡＺ", L"ａｚ"));
}

TEST(CaseFold, KeepsOtherCharactersApart) {
    EXPECT_FALSE(EqualFolded(L"×", L"÷"));
    EXPECT_FALSE(EqualFolded(L"[", L"{"));
    EXPECT_FALSE(EqualFolded(L"@", L"`"));
    EXPECT_FALSE(EqualFolded(L"abc", L"ab"));
    EXPECT_FALSE(EqualFolded(L"", L"a"));
    EXPECT_TRUE(EqualFolded(L"", L""));
    EXPECT_FALSE(EqualFolded(L"e", L"é"));
}

TEST(CaseFold, LeavesWhatIsFoldedAsItIs) {
    for (char32_t codePoint = 0; codePoint < 0x20000; ++codePoint)
        ASSERT_EQ(FoldCase(FoldCase(codePoint)), FoldCase(codePoint))
            << std::hex << static_cast<unsigned>(codePoint);
}

}  // namespace
}  // namespace korvane
