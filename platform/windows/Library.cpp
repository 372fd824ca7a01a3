#include <string>
#include <windows.h>

#include "platform/Export.h"
#include "platform/windows/files/FullPath.h"
#include "platform/windows/files/HostPath.h"

namespace korvane {
namespace {

// A damaged library is an answer to the caller and no message to the user.
class WithoutMessages {
  public:
    WithoutMessages() { SetThreadErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX, &before_); }
    ~WithoutMessages() { SetThreadErrorMode(before_, nullptr); }
    WithoutMessages(const WithoutMessages&) = delete;
    WithoutMessages& operator=(const WithoutMessages&) = delete;

  private:
    DWORD before_ = 0;
};

bool HasExtension(const std::wstring& path) {
    const std::size_t name = path.find_last_of(L"\\/") + 1;
    return path.find(L'.', name) != std::wstring::npos;
}

}  // namespace

namespace desktop {

KORVANE_API HMODULE LoadLibraryW(LPCWSTR path) {
    std::wstring host = RequireHostPath(path);
    const DWORD attributes =
        host.empty() ? INVALID_FILE_ATTRIBUTES : GetFileAttributesW((host = FullPath(host)).c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        SetLastError(ERROR_MOD_NOT_FOUND);
        return nullptr;
    }
    // The system would add an extension of its own.
    if (!HasExtension(host))
        host += L'.';
    const WithoutMessages silence;
    // What the library needs may lie beside it.
    return LoadLibraryExW(host.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
}

}  // namespace desktop
}  // namespace korvane

KORVANE_API FARPROC GetProcAddressW(HMODULE module, LPCWSTR name) {
    std::string narrow;
    bool isPlain = true;
    for (; name && *name; ++name) {
        isPlain = isPlain && *name <= 0x7F;
        narrow.push_back(static_cast<char>(*name));
    }
    if (isPlain && !narrow.empty())
        return GetProcAddress(module, narrow.c_str());
    SetLastError(ERROR_PROC_NOT_FOUND);
    return nullptr;
}
