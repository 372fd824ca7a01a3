#include <limits>

#include "tests/widgets/Bench.h"

namespace korvane::test {
namespace {

/// A group with a label, and in an inner group a picture.
CLQMemBlob Sample() {
    CLQMemBlob blob;
    EXPECT_TRUE(blob.BeginRecord(0, kKindGroup));
    EXPECT_EQ(blob.AddRecord(0), 1);
    EXPECT_EQ(blob.AddRecord(0), 2);
    EXPECT_EQ(blob.AddRecord(2), 3);
    EXPECT_TRUE(blob.BeginRecord(1, kKindStatic));
    EXPECT_TRUE(blob.BeginRecord(2, kKindGroup));
    EXPECT_TRUE(blob.BeginRecord(3, kKindImageView));
    EXPECT_TRUE(blob.SetText(1, L"text", L"\u4E0A\u5348 \U0001F697"));
    EXPECT_TRUE(blob.SetNumber(1, L"x", -17));
    EXPECT_TRUE(blob.SetNumber(1, L"y", std::numeric_limits<int>::min()));
    EXPECT_TRUE(blob.SetColor(1, L"color", 0x218CD9FF));
    EXPECT_TRUE(blob.SetText(3, L"image", L""));
    return blob;
}

void Put32(std::vector<unsigned char>& bytes, std::size_t at, std::uint32_t value) {
    for (int i = 0; i < 4; ++i)
        bytes[at + i] = static_cast<unsigned char>(value >> 8 * i);
}

/// CRC-32 the slow way.
std::uint32_t Crc32(const unsigned char* bytes, std::size_t size) {
    std::uint32_t crc = 0xFFFFFFFF;
    for (std::size_t i = 0; i < size; ++i) {
        crc ^= bytes[i];
        for (int bit = 0; bit < 8; ++bit)
            crc = crc & 1 ? crc >> 1 ^ 0xEDB88320 : crc >> 1;
    }
    return ~crc;
}

/// Makes size and checksum right again, so that the reader gets to see the rest.
void Seal(std::vector<unsigned char>& bytes) {
    Put32(bytes, 8, static_cast<std::uint32_t>(bytes.size()));
    Put32(bytes, 12, Crc32(bytes.data() + 16, bytes.size() - 16));
}

bool Loads(const std::vector<unsigned char>& bytes) {
    CLQMemBlob blob;
    return blob.FromBytes(bytes.data(), bytes.size());
}

TEST(MemBlob, GivesBackWhatWasStored) {
    const CLQMemBlob blob = Sample();
    std::wstring text;
    int number = 0;
    std::uint32_t color = 0;
    EXPECT_TRUE(blob.GetText(1, L"text", text));
    EXPECT_EQ(text, L"\u4E0A\u5348 \U0001F697");
    EXPECT_TRUE(blob.GetNumber(1, L"x", number));
    EXPECT_EQ(number, -17);
    EXPECT_TRUE(blob.GetNumber(1, L"y", number));
    EXPECT_EQ(number, std::numeric_limits<int>::min());
    EXPECT_TRUE(blob.GetColor(1, L"color", color));
    EXPECT_EQ(color, 0x218CD9FFU);
    EXPECT_TRUE(blob.GetText(3, L"image", text));
    EXPECT_EQ(text, L"");
}

TEST(MemBlob, LeavesAValueAloneThatItDoesNotHave) {
    const CLQMemBlob blob = Sample();
    int number = 5;
    std::wstring text = L"five";
    EXPECT_FALSE(blob.GetNumber(1, L"text", number)) << "of another type";
    EXPECT_FALSE(blob.GetNumber(1, L"width", number));
    EXPECT_FALSE(blob.GetNumber(0, L"x", number));
    EXPECT_FALSE(blob.GetNumber(-1, L"x", number));
    EXPECT_FALSE(blob.GetNumber(4, L"x", number));
    EXPECT_FALSE(blob.GetText(1, L"x", text));
    EXPECT_EQ(number, 5);
    EXPECT_EQ(text, L"five");
}

TEST(MemBlob, KnowsItsTree) {
    const CLQMemBlob blob = Sample();
    EXPECT_EQ(blob.GetRecordCount(), 4);
    EXPECT_EQ(blob.GetKind(2), kKindGroup);
    EXPECT_EQ(blob.GetKind(4), -1);
    EXPECT_EQ(blob.GetKind(-1), -1);
    EXPECT_EQ(blob.GetChildren(0), (std::vector<int>{1, 2}));
    EXPECT_EQ(blob.GetChildren(2), (std::vector<int>{3}));
    EXPECT_TRUE(blob.GetChildren(1).empty());
    EXPECT_TRUE(blob.GetChildren(-5).empty());
    EXPECT_TRUE(blob.GetChildren(5).empty());
}

TEST(MemBlob, StoresAPropertyInPlaceOfAnEarlierOne) {
    CLQMemBlob blob;
    blob.BeginRecord(0, kKindStatic);
    blob.SetNumber(0, L"x", 1);
    blob.SetText(0, L"x", L"one");
    int number = 5;
    std::wstring text;
    EXPECT_FALSE(blob.GetNumber(0, L"x", number));
    EXPECT_TRUE(blob.GetText(0, L"x", text));
    EXPECT_EQ(text, L"one");
}

TEST(MemBlob, WritesEachRecordOnce) {
    CLQMemBlob blob;
    EXPECT_FALSE(blob.BeginRecord(1, kKindGroup)) << "there is no record 0";
    EXPECT_FALSE(blob.BeginRecord(-1, kKindGroup));
    EXPECT_FALSE(blob.BeginRecord(0, -1));
    EXPECT_TRUE(blob.BeginRecord(0, kKindGroup));
    EXPECT_FALSE(blob.BeginRecord(0, kKindGroup));
    EXPECT_EQ(blob.AddRecord(7), -1);
    EXPECT_EQ(blob.AddRecord(-1), -1);
    EXPECT_FALSE(blob.SetNumber(1, L"x", 1));
    EXPECT_FALSE(blob.SetText(-1, L"x", L"1"));
}

TEST(MemBlob, KeepsItsBounds) {
    CLQMemBlob blob;
    ASSERT_TRUE(blob.BeginRecord(0, kKindGroup));
    int deepest = 0;
    for (int depth = 2; depth <= CLQMemBlob::kMaxDepth; ++depth)
        deepest = blob.AddRecord(deepest);
    EXPECT_GT(deepest, 0);
    EXPECT_EQ(blob.AddRecord(deepest), -1);
    while (blob.GetRecordCount() < CLQMemBlob::kMaxRecords)
        ASSERT_NE(blob.AddRecord(0), -1);
    EXPECT_EQ(blob.AddRecord(0), -1);
    EXPECT_FALSE(blob.BeginRecord(CLQMemBlob::kMaxRecords, kKindGroup));
    for (int i = 0; i < CLQMemBlob::kMaxProperties; ++i)
        ASSERT_TRUE(blob.SetNumber(0, L"key" + std::to_wstring(i), i));
    EXPECT_FALSE(blob.SetNumber(0, L"one more", 1));
    EXPECT_TRUE(blob.SetText(1, L"text", std::wstring(CLQMemBlob::kMaxText, L'a')));
    EXPECT_FALSE(blob.SetText(1, L"text", std::wstring(CLQMemBlob::kMaxText + 1, L'a')));
    EXPECT_FALSE(blob.SetText(1, L"text", std::wstring(1, static_cast<wchar_t>(0xD800))))
        << "half a character";
    EXPECT_TRUE(Loads(blob.ToBytes()));
}

TEST(MemBlob, WritesNoFileBeyondItsGreatestSize) {
    CLQMemBlob blob;
    blob.BeginRecord(0, kKindGroup);
    for (int i = 0; i < 100; ++i) {
        const std::wstring key = L"text" + std::to_wstring(i);
        ASSERT_TRUE(blob.SetText(0, key, std::wstring(CLQMemBlob::kMaxText - 3, L'a') + std::to_wstring(i)));
    }
    EXPECT_TRUE(blob.ToBytes().empty());
    EXPECT_FALSE(blob.SaveFile(L"\\toolarge.bin"));
}

TEST(MemBlob, BoundsTheTextsThatItsControlsWillHave) {
    CLQMemBlob blob;
    ASSERT_TRUE(blob.BeginRecord(0, kKindGroup));
    const std::wstring longText(CLQMemBlob::kMaxText, L'x');
    // As many properties as fit name the same text.
    for (int i = 0; i < 64; ++i)
        ASSERT_TRUE(blob.SetText(0, L"t" + std::to_wstring(i), longText));
    const std::vector<unsigned char> full = blob.ToBytes();
    EXPECT_TRUE(Loads(full));
    ASSERT_TRUE(blob.SetText(0, L"t64", longText));
    EXPECT_TRUE(blob.ToBytes().empty());

    // A number that is made a text afterwards, so that the file says more than could be written.
    ASSERT_TRUE(blob.SetNumber(0, L"t64", 1));
    std::vector<unsigned char> bytes = blob.ToBytes();
    ASSERT_FALSE(bytes.empty());
    bytes[bytes.size() - 6] = 2;
    Seal(bytes);
    EXPECT_TRUE(Loads(bytes)) << "string 1 is short";
    bytes[bytes.size() - 4] = 0;
    Seal(bytes);
    EXPECT_FALSE(Loads(bytes)) << "string 0 is the long one";
}

TEST(MemBlob, SurvivesTheWayThroughItsBytes) {
    const std::vector<unsigned char> bytes = Sample().ToBytes();
    CLQMemBlob blob;
    ASSERT_TRUE(blob.FromBytes(bytes.data(), bytes.size()));
    EXPECT_EQ(blob.GetRecordCount(), 4);
    EXPECT_EQ(blob.GetChildren(0), (std::vector<int>{1, 2}));
    std::wstring text;
    EXPECT_TRUE(blob.GetText(1, L"text", text));
    EXPECT_EQ(text, L"\u4E0A\u5348 \U0001F697");
    EXPECT_EQ(blob.ToBytes(), bytes);
    EXPECT_FALSE(blob.BeginRecord(0, kKindGroup)) << "what was loaded is written";
}

TEST(MemBlob, RefusesEveryTruncationAndEveryChangedByte) {
    const std::vector<unsigned char> bytes = Sample().ToBytes();
    for (std::size_t size = 0; size < bytes.size(); ++size) {
        const std::vector<unsigned char> cut(bytes.begin(),
                                             bytes.begin() + static_cast<std::ptrdiff_t>(size));
        EXPECT_FALSE(Loads(cut)) << size;
    }
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        std::vector<unsigned char> changed = bytes;
        changed[at] ^= 0x10;
        EXPECT_FALSE(Loads(changed)) << at;
    }
    std::vector<unsigned char> longer = bytes;
    longer.push_back(0);
    EXPECT_FALSE(Loads(longer));
    Seal(longer);
    EXPECT_FALSE(Loads(longer));
    CLQMemBlob blob;
    EXPECT_FALSE(blob.FromBytes(nullptr, 100));
}

TEST(MemBlob, RefusesLiesBehindARightChecksum) {
    CLQMemBlob blob;
    blob.BeginRecord(0, kKindGroup);
    blob.BeginRecord(blob.AddRecord(0), kKindStatic);
    blob.SetText(1, L"k", L"v");
    // Strings "v" and "k" take 3 bytes each from byte 32, the records 12 each from 38, the property 8
    // from 62.
    const std::vector<unsigned char> good = blob.ToBytes();
    ASSERT_EQ(good.size(), 70U);
    struct Lie {
        std::size_t at;
        std::uint32_t value;
        const char* what;
    };
    const Lie lies[] = {
        {4, 2, "another version"},
        {16, 3, "more strings"},
        {16, 1, "fewer strings"},
        {16, 0xFFFFFFFF, "countless strings"},
        {20, 3, "more records"},
        {20, 0xFFFFFFFF, "countless records"},
        {24, 0, "fewer properties"},
        {24, 0xFFFFFFFF, "countless properties"},
        {28, 1, "reserved bytes in use"},
        {32, 0x0000FFFF, "a string beyond the end"},
        {38, 0x80000000, "a kind below 0"},
        {42, 0, "a root that is its own parent"},
        {54, 1, "a child that is its own parent"},
        {54, 2, "a parent behind its child"},
        {54, 0xFFFFFFFE, "a parent below 0"},
        {58, 2, "a count of properties that does not add up"},
        {58, 0x10001, "more properties than a record has"},
        {62, 0x00020002, "a key that is no string"},
        {62, 0x00040001, "an unknown type"},
        {62, 0x00000001, "no type"},
        {66, 2, "a text that is no string"},
        {66, 0xFFFFFFFF, "a text far beyond the strings"},
    };
    for (const Lie& lie : lies) {
        std::vector<unsigned char> bytes = good;
        Put32(bytes, lie.at, lie.value);
        Seal(bytes);
        EXPECT_FALSE(Loads(bytes)) << lie.what;
    }
    std::vector<unsigned char> twice = good;
    twice[34] = twice[37];
    Seal(twice);
    EXPECT_FALSE(Loads(twice)) << "a string that stands there twice";
    std::vector<unsigned char> broken = good;
    broken[34] = 0xC3;
    Seal(broken);
    EXPECT_FALSE(Loads(broken)) << "a string that is not UTF-8";
    std::vector<unsigned char> sealed = good;
    Seal(sealed);
    EXPECT_TRUE(Loads(sealed)) << "without a lie";
}

TEST(MemBlob, RefusesATreeThatIsTooDeep) {
    CLQMemBlob blob;
    blob.BeginRecord(0, kKindGroup);
    int deepest = 0;
    while (blob.GetRecordCount() < CLQMemBlob::kMaxDepth)
        deepest = blob.AddRecord(deepest);
    blob.AddRecord(0);
    std::vector<unsigned char> bytes = blob.ToBytes();
    ASSERT_TRUE(Loads(bytes));
    Put32(bytes, 32 + 12 * 16 + 4, 15);
    Seal(bytes);
    EXPECT_FALSE(Loads(bytes));
}

TEST(MemBlob, KeepsWhatItHasWhenItCannotLoad) {
    CLQMemBlob blob = Sample();
    const unsigned char garbage[40] = {'K', 'V', 'L', 'Y'};
    EXPECT_FALSE(blob.FromBytes(garbage, sizeof(garbage)));
    EXPECT_EQ(blob.GetRecordCount(), 4);
}

TEST(MemBlob, IsSavedToAFileAndLoadedFromIt) {
    Scene scene;
    const CLQMemBlob sample = Sample();
    EXPECT_TRUE(sample.SaveFile(L"\\sample.bin"));
    CLQMemBlob blob;
    EXPECT_TRUE(blob.LoadFile(L"\\sample.bin"));
    EXPECT_EQ(blob.ToBytes(), sample.ToBytes());
    EXPECT_FALSE(blob.LoadFile(L"\\missing.bin"));
    EXPECT_FALSE(blob.LoadFile(nullptr));
    EXPECT_FALSE(blob.LoadFile(L""));
    EXPECT_FALSE(sample.SaveFile(nullptr));
    EXPECT_FALSE(sample.SaveFile(L"\\no\\such\\folder.bin"));
    EXPECT_EQ(blob.GetRecordCount(), 4);
}

}  // namespace
}  // namespace korvane::test
