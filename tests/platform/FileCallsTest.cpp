#include <gtest/gtest.h>
#include <string>

#include "platform/coredll.h"

#include "tests/platform/DeviceFolder.h"

namespace korvane {
namespace {

bool IsFolder(const wchar_t* path) {
    const DWORD attributes = GetFileAttributesW(path);
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

class FileCallsTest : public testing::Test {
  protected:
    DeviceFolder device_;
};

TEST_F(FileCallsTest, MakesAndRemovesFolders) {
    EXPECT_TRUE(CreateDirectoryW(L"\\Data", nullptr));
    EXPECT_TRUE(IsFolder(L"\\DATA"));
    EXPECT_FALSE(CreateDirectoryW(L"\\data", nullptr));
    EXPECT_EQ(GetLastError(), ERROR_ALREADY_EXISTS);
    EXPECT_FALSE(CreateDirectoryW(L"\\None\\Below", nullptr));
    EXPECT_EQ(GetLastError(), ERROR_PATH_NOT_FOUND);
    device_.Write("Data/file");
    EXPECT_FALSE(RemoveDirectoryW(L"\\Data"));
    EXPECT_EQ(GetLastError(), ERROR_DIR_NOT_EMPTY);
    EXPECT_TRUE(DeleteFileW(L"\\Data\\FILE"));
    EXPECT_TRUE(RemoveDirectoryW(L"\\Data"));
    EXPECT_EQ(GetFileAttributesW(L"\\Data"), INVALID_FILE_ATTRIBUTES);
}

TEST_F(FileCallsTest, NeverRemovesTheRoot) {
    EXPECT_FALSE(RemoveDirectoryW(L"\\"));
    EXPECT_FALSE(RemoveDirectoryW(L"a\\.."));
    EXPECT_FALSE(MoveFileW(L"\\", L"\\a"));
    EXPECT_FALSE(DeleteFileW(L"\\"));
    EXPECT_TRUE(IsFolder(L"\\"));
}

TEST_F(FileCallsTest, DeletesNoFolderAsAFile) {
    CreateDirectoryW(L"a", nullptr);
    EXPECT_FALSE(DeleteFileW(L"a"));
    EXPECT_FALSE(DeleteFileW(L"b"));
    device_.Write("c");
    EXPECT_FALSE(RemoveDirectoryW(L"c"));
}

TEST_F(FileCallsTest, DoesNotMoveOverAnotherFile) {
    device_.Write("from", "1");
    device_.Write("to", "2");
    EXPECT_FALSE(MoveFileW(L"from", L"TO"));
    EXPECT_EQ(device_.Read("to"), "2");
    EXPECT_TRUE(MoveFileW(L"from", L"new"));
    EXPECT_EQ(device_.Read("new"), "1");
    EXPECT_FALSE(MoveFileW(L"from", L"newer"));
}

TEST_F(FileCallsTest, ChangesTheCaseOfAName) {
    device_.Write("name", "1");
    EXPECT_TRUE(MoveFileW(L"name", L"NAME"));
    EXPECT_EQ(device_.Read("NAME"), "1");
}

TEST_F(FileCallsTest, OpensFilesInTheModesOfTheCLibrary) {
    std::FILE* file = _wfopen(L"\\new.ini", L"wb");
    ASSERT_NE(file, nullptr);
    std::fputs("abc", file);
    std::fclose(file);
    file = _wfopen(L"NEW.INI", L"rt, ccs=UTF-8");
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(std::fgetc(file), 'a');
    std::fclose(file);
}

TEST_F(FileCallsTest, OpensNothingThatIsNoFile) {
    CreateDirectoryW(L"folder", nullptr);
    EXPECT_EQ(_wfopen(L"folder", L"rb"), nullptr);
    EXPECT_EQ(_wfopen(L"missing", L"rb"), nullptr);
    EXPECT_EQ(_wfopen(L"none\\file", L"wb"), nullptr);
    EXPECT_EQ(_wfopen(nullptr, L"rb"), nullptr);
    EXPECT_EQ(_wfopen(L"x", nullptr), nullptr);
    EXPECT_EQ(_wfopen(L"x", L""), nullptr);
    EXPECT_EQ(_wfopen(L"x", L"q"), nullptr);
    EXPECT_EQ(_wfopen(L"x", L"+r"), nullptr);
}

TEST_F(FileCallsTest, OpensForReadingWritingAndAppending) {
    device_.Write("file", "abc");
    const auto use = [](const wchar_t* mode, const char* text) {
        std::FILE* const file = _wfopen(L"FILE", mode);
        if (!file)
            return false;
        const bool done = std::fputs(text, file) >= 0 && std::fflush(file) == 0;
        std::fclose(file);
        return done;
    };
    EXPECT_FALSE(use(L"r", "d"));
    EXPECT_TRUE(use(L"r+", "d"));
    EXPECT_EQ(device_.Read("file"), "dbc");
    EXPECT_TRUE(use(L"a", "\r\n"));
    EXPECT_EQ(device_.Read("file"), "dbc\r\n");
    EXPECT_FALSE(use(L"wx", "e")) << "it exists";
    EXPECT_TRUE(use(L"w+t", "e\n"));
    EXPECT_EQ(device_.Read("file"), "e\n");
}

TEST_F(FileCallsTest, OpensAFileThatIsOpen) {
    std::FILE* const writer = _wfopen(L"file", L"wb");
    ASSERT_NE(writer, nullptr);
    std::fputs("abc", writer);
    std::fflush(writer);
    std::FILE* const reader = _wfopen(L"file", L"rb");
    ASSERT_NE(reader, nullptr);
    EXPECT_EQ(std::fgetc(reader), 'a');
    EXPECT_TRUE(DeleteFileW(L"file"));
    std::fclose(reader);
    std::fclose(writer);
    EXPECT_EQ(GetFileAttributesW(L"file"), INVALID_FILE_ATTRIBUTES);
}

TEST_F(FileCallsTest, RefusesPathsLongerThanAnySystemTakes) {
    const std::wstring path = L"\\" + std::wstring(100000, L'x');
    EXPECT_FALSE(CreateDirectoryW(path.c_str(), nullptr));
    EXPECT_EQ(GetLastError(), ERROR_FILENAME_EXCED_RANGE);
    EXPECT_EQ(GetFileAttributesW(path.c_str()), INVALID_FILE_ATTRIBUTES);
    EXPECT_FALSE(MoveFileW(L"\\", path.c_str()));
    WIN32_FIND_DATAW found;
    EXPECT_EQ(FindFirstFileW(path.c_str(), &found), INVALID_HANDLE_VALUE);
    EXPECT_EQ(_wfopen(path.c_str(), L"rb"), nullptr);
    EXPECT_EQ(LoadLibraryW(path.c_str()), nullptr);
}

TEST_F(FileCallsTest, RefusesMissingNames) {
    EXPECT_FALSE(CreateDirectoryW(nullptr, nullptr));
    EXPECT_FALSE(RemoveDirectoryW(L""));
    EXPECT_FALSE(DeleteFileW(nullptr));
    EXPECT_FALSE(MoveFileW(nullptr, L"a"));
    EXPECT_FALSE(MoveFileW(L"a", nullptr));
    EXPECT_EQ(GetFileAttributesW(nullptr), INVALID_FILE_ATTRIBUTES);
}

}  // namespace
}  // namespace korvane
