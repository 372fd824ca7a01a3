#include "demo/headunit/files/Folder.h"

#include <algorithm>
#include <cwchar>

#include "platform/coredll.h"

namespace korvane::demo {

namespace {

constexpr std::size_t kMostEntries = 10000;

FolderEntry EntryOf(const WIN32_FIND_DATAW& data) {
    const bool isFolder = (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    return {data.cFileName, isFolder, std::uint64_t{data.nFileSizeHigh} << 32 | data.nFileSizeLow};
}

bool IsBefore(const FolderEntry& left, const FolderEntry& right) {
    return left.isFolder != right.isFolder ? left.isFolder : left.name < right.name;
}

/// Hidden names, and those that no path can hold.
bool IsLeftOut(const wchar_t* name) {
    return name[0] == L'.' || std::wcspbrk(name, L"\\/") != nullptr;
}

}  // namespace

bool IsFolder(const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

std::optional<std::vector<FolderEntry>> ReadFolder(const std::wstring& path) {
    if (!IsFolder(path))
        return std::nullopt;
    std::vector<FolderEntry> entries;
    WIN32_FIND_DATAW data;
    const HANDLE search = FindFirstFileW((path + L"\\*").c_str(), &data);
    // An empty folder.
    if (search == INVALID_HANDLE_VALUE)
        return entries;
    do {
        if (!IsLeftOut(data.cFileName))
            entries.push_back(EntryOf(data));
    } while (entries.size() < kMostEntries && FindNextFileW(search, &data));
    FindClose(search);
    std::sort(entries.begin(), entries.end(), IsBefore);
    return entries;
}

}  // namespace korvane::demo
