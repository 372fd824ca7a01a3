#include <algorithm>
#include <dirent.h>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <sys/stat.h>
#include <vector>

#include "platform/Unicode.h"
#include "platform/posix/LastError.h"
#include "platform/posix/files/Attributes.h"
#include "platform/posix/files/DevicePath.h"
#include "platform/posix/files/Wildcard.h"

namespace korvane {
namespace {

struct Search {
    std::string hostFolder;
    std::vector<std::string> names;  // the last one comes next
};

struct Searches {
    std::mutex mutex;
    std::map<UINT_PTR, std::unique_ptr<Search>> open;
    UINT_PTR lastHandle = 0;
};

Searches& TheSearches() {
    static Searches searches;
    return searches;
}

std::vector<std::string> FittingNames(const std::string& hostFolder, std::wstring_view pattern) {
    std::vector<std::string> names;
    const std::unique_ptr<DIR, int (*)(DIR*)> folder(opendir(hostFolder.c_str()), &closedir);
    if (!folder)
        return names;
    while (const dirent* entry = readdir(folder.get())) {
        const std::string name = entry->d_name;
        if (name != "." && name != ".." && FitsWildcard(FromUtf8(name), pattern))
            names.push_back(name);
    }
    std::sort(names.rbegin(), names.rend());
    return names;
}

bool Describe(const std::string& hostFolder, const std::string& name, WIN32_FIND_DATAW& data) {
    const std::wstring wide = FromUtf8(name);
    struct stat status {};
    if (wide.size() >= MAX_PATH || stat((hostFolder + '/' + name).c_str(), &status) != 0)
        return false;
    const auto size = static_cast<std::uint64_t>(status.st_size);
    data = WIN32_FIND_DATAW{};
    data.dwFileAttributes = AttributesOf(status);
    data.ftCreationTime = FileTimeOf(status.st_ctim);
    data.ftLastAccessTime = FileTimeOf(status.st_atim);
    data.ftLastWriteTime = FileTimeOf(status.st_mtim);
    data.nFileSizeHigh = static_cast<DWORD>(size >> 32);
    data.nFileSizeLow = static_cast<DWORD>(size);
    std::copy(wide.begin(), wide.end(), data.cFileName);
    return true;
}

// Moves on to the next entry; those that have vanished meanwhile or whose names do not fit the record are
// passed over.
bool Next(Search& search, WIN32_FIND_DATAW& data) {
    while (!search.names.empty()) {
        const std::string name = std::move(search.names.back());
        search.names.pop_back();
        if (Describe(search.hostFolder, name, data))
            return true;
    }
    return false;
}

}  // namespace
}  // namespace korvane

using namespace korvane;

extern "C" {

HANDLE FindFirstFileW(LPCWSTR pattern, WIN32_FIND_DATAW* data) {
    const std::wstring_view path = pattern ? pattern : L"";
    std::vector<std::wstring_view> components = DeviceComponents(path);
    const bool namesNothing = path.empty() || path.back() == L'\\' || path.back() == L'/';
    if (!data || namesNothing || components.empty()) {
        SetLastError(data ? ERROR_FILE_NOT_FOUND : ERROR_INVALID_PARAMETER);
        return INVALID_HANDLE_VALUE;
    }
    const std::wstring_view name = components.back();
    components.pop_back();
    auto search = std::make_unique<Search>();
    search->hostFolder = HostPathOf(components);
    search->names = FittingNames(search->hostFolder, name);
    if (!Next(*search, *data)) {
        SetLastError(ERROR_FILE_NOT_FOUND);
        return INVALID_HANDLE_VALUE;
    }
    Searches& searches = TheSearches();
    const std::lock_guard<std::mutex> lock(searches.mutex);
    searches.open.emplace(++searches.lastHandle, std::move(search));
    return reinterpret_cast<HANDLE>(searches.lastHandle);
}

BOOL FindNextFileW(HANDLE search, WIN32_FIND_DATAW* data) {
    Searches& searches = TheSearches();
    const std::lock_guard<std::mutex> lock(searches.mutex);
    const auto found = searches.open.find(reinterpret_cast<UINT_PTR>(search));
    if (found == searches.open.end())
        return Fail(ERROR_INVALID_HANDLE);
    if (!data)
        return Fail(ERROR_INVALID_PARAMETER);
    return Next(*found->second, *data) || Fail(ERROR_NO_MORE_FILES);
}

BOOL FindClose(HANDLE search) {
    Searches& searches = TheSearches();
    const std::lock_guard<std::mutex> lock(searches.mutex);
    return searches.open.erase(reinterpret_cast<UINT_PTR>(search)) != 0 || Fail(ERROR_INVALID_HANDLE);
}
}
