#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "platform/coredll.h"

#include "tests/platform/DeviceFolder.h"

namespace korvane {
namespace {

std::vector<std::wstring> NamesOf(const wchar_t* pattern) {
    std::vector<std::wstring> names;
    WIN32_FIND_DATAW data{};
    const HANDLE search = FindFirstFileW(pattern, &data);
    if (search == INVALID_HANDLE_VALUE)
        return names;
    do
        names.emplace_back(data.cFileName);
    while (FindNextFileW(search, &data));
    EXPECT_EQ(GetLastError(), ERROR_NO_MORE_FILES);
    EXPECT_TRUE(FindClose(search));
    return names;
}

using Names = std::vector<std::wstring>;

class FindFileTest : public testing::Test {
  protected:
    FindFileTest() {
        for (const char* name : {"Data/b.ini", "Data/A.INI", "Data/c.txt", "Data/sub/d.ini", "Data/noext"})
            device_.Write(name, "12345");
    }
    DeviceFolder device_;
};

TEST_F(FindFileTest, ListsAFolderWithoutItsDots) {
    EXPECT_EQ(NamesOf(L"\\Data\\*"), (Names{L"A.INI", L"b.ini", L"c.txt", L"noext", L"sub"}));
    EXPECT_EQ(NamesOf(L"\\data\\*.*"), (Names{L"A.INI", L"b.ini", L"c.txt", L"noext", L"sub"}));
}

TEST_F(FindFileTest, MatchesWildcardsWithoutRegardToCase) {
    EXPECT_EQ(NamesOf(L"data/*.ini"), (Names{L"A.INI", L"b.ini"}));
    EXPECT_EQ(NamesOf(L"data/?.txt"), (Names{L"c.txt"}));
    EXPECT_EQ(NamesOf(L"data/*n*i"), (Names{L"A.INI", L"b.ini"}));
    EXPECT_EQ(NamesOf(L"data/??"), Names{});
    EXPECT_EQ(NamesOf(L"data/n*o*t"), (Names{L"noext"}));
}

TEST_F(FindFileTest, FindsOneEntryByItsName) {
    WIN32_FIND_DATAW data{};
    HANDLE search = FindFirstFileW(L"\\data\\B.ini", &data);
    ASSERT_NE(search, INVALID_HANDLE_VALUE);
    EXPECT_STREQ(data.cFileName, L"b.ini");
    EXPECT_EQ(data.nFileSizeLow, 5u);
    EXPECT_EQ(data.nFileSizeHigh, 0u);
    EXPECT_EQ(data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY, 0u);
    EXPECT_NE(data.ftLastWriteTime.dwHighDateTime, 0u);
    EXPECT_TRUE(FindClose(search));
    search = FindFirstFileW(L"\\DATA", &data);
    ASSERT_NE(search, INVALID_HANDLE_VALUE);
    EXPECT_NE(data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY, 0u);
    EXPECT_TRUE(FindClose(search));
}

TEST_F(FindFileTest, FindsNothingWhereNothingFits) {
    EXPECT_EQ(NamesOf(L"\\Data\\x"), Names{});
    EXPECT_EQ(NamesOf(L"\\None\\*"), Names{});
    EXPECT_EQ(NamesOf(L"\\Data\\"), Names{});
    EXPECT_EQ(NamesOf(L"\\"), Names{});
    EXPECT_EQ(NamesOf(L""), Names{});
    EXPECT_EQ(NamesOf(nullptr), Names{});
    EXPECT_EQ(FindFirstFileW(L"\\Data", nullptr), INVALID_HANDLE_VALUE);
}

TEST_F(FindFileTest, RefusesASearchThatIsNone) {
    WIN32_FIND_DATAW data{};
    EXPECT_FALSE(FindNextFileW(INVALID_HANDLE_VALUE, &data));
    EXPECT_FALSE(FindClose(INVALID_HANDLE_VALUE));
    EXPECT_EQ(GetLastError(), ERROR_INVALID_HANDLE);
}

TEST_F(FindFileTest, GivesUpOnWildcardsWithoutTakingForever) {
    device_.Write(std::string(200, 'a'));
    const std::wstring pattern = L"a*a*a*a*a*a*a*a*a*a*a*a*a*a*a*a*b";
    EXPECT_EQ(NamesOf(pattern.c_str()), Names{});
}

}  // namespace
}  // namespace korvane
