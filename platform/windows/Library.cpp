#include "platform/windows/coredll/Library.h"

#include <cwchar>
#include <string>

#include "platform/Simulation.h"
#include "platform/windows/WithoutMessages.h"
#include "platform/windows/files/FullPath.h"
#include "platform/windows/files/HostPath.h"

namespace korvane {
namespace {

bool HasExtension(const std::wstring& path) {
    const std::size_t name = path.find_last_of(L"\\/") + 1;
    return path.find(L'.', name) != std::wstring::npos;
}

// Where there is no device, a bare name is a library that the system looks for in its folders, and never in
// the current one before those.
bool IsForTheSystemToFind(LPCWSTR path) {
    return path && *path && !std::wcspbrk(path, L"\\/:") && DeviceRoot().empty();
}

}  // namespace

namespace desktop {

HMODULE LoadLibraryW(LPCWSTR path) {
    const WithoutMessages silence;
    if (IsForTheSystemToFind(path))
        return LoadLibraryExW(path, nullptr, 0);
    std::wstring host = RequireHostPath(path);
    const DWORD attributes =
        host.empty() ? INVALID_FILE_ATTRIBUTES : ::GetFileAttributesW((host = FullPath(host)).c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        SetLastError(ERROR_MOD_NOT_FOUND);
        return nullptr;
    }
    // The system would add an extension of its own.
    if (!HasExtension(host))
        host += L'.';
    // What the library needs may lie beside it.
    return LoadLibraryExW(host.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
}

}  // namespace desktop
}  // namespace korvane

FARPROC GetProcAddressW(HMODULE module, LPCWSTR name) {
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
