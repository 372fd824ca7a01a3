#include <cwchar>
#include <string>

#include "platform/windows/LastError.h"
#include "platform/windows/coredll/Files.h"
#include "platform/windows/files/HostPath.h"

namespace korvane {
namespace {

bool IsDots(const WIN32_FIND_DATAW& data) {
    return std::wcscmp(data.cFileName, L".") == 0 || std::wcscmp(data.cFileName, L"..") == 0;
}

bool EndsInSeparator(LPCWSTR path) {
    const wchar_t last = path[std::wcslen(path) - 1];
    return last == L'\\' || last == L'/';
}

// Moves on until the entry is one of the folder's own.
bool SkipDots(HANDLE search, WIN32_FIND_DATAW& data) {
    while (IsDots(data)) {
        if (!::FindNextFileW(search, &data))
            return false;
    }
    return true;
}

HANDLE FindNone(DWORD error) {
    SetLastError(error);
    return INVALID_HANDLE_VALUE;
}

}  // namespace

namespace desktop {

HANDLE FindFirstFileW(LPCWSTR pattern, WIN32_FIND_DATAW* data) {
    const std::wstring host = RequireHostPath(pattern);
    if (!data)
        return FindNone(ERROR_INVALID_PARAMETER);
    // The system would find the device root itself below its folder.
    if (host.empty() || EndsInSeparator(pattern) || IsDeviceRoot(pattern))
        return FindNone(ERROR_FILE_NOT_FOUND);
    const HANDLE search = ::FindFirstFileW(host.c_str(), data);
    if (search == INVALID_HANDLE_VALUE || SkipDots(search, *data))
        return search;
    FindClose(search);
    return FindNone(ERROR_FILE_NOT_FOUND);
}

BOOL FindNextFileW(HANDLE search, WIN32_FIND_DATAW* data) {
    if (!data)
        return Refuse(ERROR_INVALID_PARAMETER);
    return ::FindNextFileW(search, data) && SkipDots(search, *data);
}

}  // namespace desktop
}  // namespace korvane
