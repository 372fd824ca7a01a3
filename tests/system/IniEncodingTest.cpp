#include <gtest/gtest.h>

#include "engine/system/IniReadWrite.h"

#include "tests/system/ScratchDevice.h"

namespace {

using namespace std::string_literals;

enum class ByteOrder { LittleEndian, BigEndian };

std::string Utf16(std::u16string_view text, ByteOrder order) {
    std::string bytes;
    for (const char16_t unit : text) {
        const char low = static_cast<char>(unit & 0xFF);
        const char high = static_cast<char>(unit >> 8);
        bytes += order == ByteOrder::LittleEndian ? low : high;
        bytes += order == ByteOrder::LittleEndian ? high : low;
    }
    return bytes;
}

class IniEncoding : public testing::Test {
  protected:
    /// Loads the file, sets [names] city to a text beyond Latin-1 and the BMP, and gives the file rewritten.
    std::string Rewritten(std::string_view bytes) {
        device_.Write("x.ini", bytes);
        ini_.SetFileName(L"x.ini");
        EXPECT_TRUE(ini_.SetValue(L"names", L"city", L"\u4E0A\u6D77 \U0001F697", true));
        ini_.Update();
        return device_.Read("x.ini");
    }

    ScratchDevice device_;
    CLQIniReadWrite ini_;
};

constexpr char kCityUtf8[] = "\xE4\xB8\x8A\xE6\xB5\xB7 \xF0\x9F\x9A\x97";

}  // namespace

TEST_F(IniEncoding, RewritesUtf8WithoutAMark) {
    EXPECT_EQ(Rewritten("[names]\ncity=x\nk=\xC3\xA9\n"), "[names]\ncity="s + kCityUtf8 + "\nk=\xC3\xA9\n");
    EXPECT_EQ(ini_.GetString(L"names", L"k", L""), L"\u00E9");
}

TEST_F(IniEncoding, KeepsTheMarkOfUtf8) {
    EXPECT_EQ(Rewritten("\xEF\xBB\xBF[names]\ncity=x\n"), "\xEF\xBB\xBF[names]\ncity="s + kCityUtf8 + "\n");
}

TEST_F(IniEncoding, RewritesUtf16OfBothByteOrders) {
    for (const ByteOrder order : {ByteOrder::LittleEndian, ByteOrder::BigEndian}) {
        const std::string before = Utf16(u"\uFEFF; \u4E2D\r\n[names]\r\ncity = \u00FC\r\n", order);
        const std::string after =
            Utf16(u"\uFEFF; \u4E2D\r\n[names]\r\ncity = \u4E0A\u6D77 \U0001F697\r\n", order);
        EXPECT_EQ(Rewritten(before), after);
    }
}

TEST_F(IniEncoding, ReadsUtf16OfBothByteOrders) {
    for (const ByteOrder order : {ByteOrder::LittleEndian, ByteOrder::BigEndian}) {
        device_.Write("x.ini", Utf16(u"\uFEFF[\u0416]\n\u0436=\u4E0A\U0001F697\nn=0x10\n", order));
        ini_.SetFileName(L"x.ini");
        EXPECT_EQ(ini_.GetString(L"\u0436", L"\u0416", L"missing"), L"\u4E0A\U0001F697");
        EXPECT_EQ(ini_.GetInt(L"\u0416", L"n", 0), 16);
    }
}

TEST_F(IniEncoding, AddsToUtf16InItsEncoding) {
    const std::string before = Utf16(u"\uFEFF[names]\na=1", ByteOrder::BigEndian);
    EXPECT_EQ(Rewritten(before),
              Utf16(u"\uFEFF[names]\na=1\ncity=\u4E0A\u6D77 \U0001F697", ByteOrder::BigEndian));
}

TEST_F(IniEncoding, LeavesBytesThatAreNotUtf8AsTheyAre) {
    EXPECT_EQ(Rewritten("; \xFF\xC3\n[names]\nbad=\x80\xE4\xB8\ncity=x\n"),
              "; \xFF\xC3\n[names]\nbad=\x80\xE4\xB8\ncity="s + kCityUtf8 + "\n");
}

TEST_F(IniEncoding, ReadsBytesThatAreNotUtf8AsReplacementCharacters) {
    device_.Write("x.ini", "[a]\nx=1\xFF"s + "2\n");
    ini_.SetFileName(L"x.ini");
    EXPECT_EQ(ini_.GetString(L"a", L"x", L""), L"1\uFFFD2");
    EXPECT_EQ(ini_.GetInt(L"a", L"x", 9), 9);
}

TEST_F(IniEncoding, LeavesZeroBytesAsTheyAre) {
    EXPECT_EQ(Rewritten("[names]\nz\0=a\0b\ncity=x\n\0\0"s),
              "[names]\nz\0=a\0b\ncity="s + kCityUtf8 + "\n\0\0"s);
}

TEST_F(IniEncoding, LeavesHalfACharacterOfUtf16AsItIs) {
    const std::string lone = Utf16(std::u16string(1, char16_t(0xD83D)), ByteOrder::LittleEndian);
    const std::string mark = Utf16(u"\uFEFF", ByteOrder::LittleEndian);
    const std::string start = Utf16(u"[names]\nlone=", ByteOrder::LittleEndian);
    const std::string city = Utf16(u"\u4E0A\u6D77 \U0001F697", ByteOrder::LittleEndian);
    const std::string key = Utf16(u"x\ncity=", ByteOrder::LittleEndian);
    EXPECT_EQ(Rewritten(mark + start + lone + key + "!"), mark + start + lone + key + city + "!");
    EXPECT_EQ(ini_.GetString(L"names", L"lone", L""), L"\uFFFDx");
}

TEST_F(IniEncoding, TakesAMarkAloneAsAnEmptyFileOfItsEncoding) {
    EXPECT_EQ(Rewritten("\xFF\xFE"),
              Utf16(u"\uFEFF[names]\r\ncity=\u4E0A\u6D77 \U0001F697\r\n", ByteOrder::LittleEndian));
    EXPECT_EQ(Rewritten("\xEF\xBB\xBF"), "\xEF\xBB\xBF[names]\r\ncity="s + kCityUtf8 + "\r\n");
}
