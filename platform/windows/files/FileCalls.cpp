#include <cerrno>
#include <cstdio>
#include <cwchar>
#include <fcntl.h>
#include <io.h>
#include <string>

#include "platform/windows/Handle.h"
#include "platform/windows/LastError.h"
#include "platform/windows/coredll/Files.h"
#include "platform/windows/files/HostPath.h"

namespace korvane {
namespace {

// What a mode of fopen asks of the system and of the C library.
struct OpenMode {
    DWORD access = 0;
    DWORD disposition = 0;
    int flags = 0;
    std::string name;  // empty for what is no mode
};

// The modes hold nothing but these characters; the rest of a wide mode concerns text translation, of which
// there is none.
OpenMode ParseMode(const wchar_t* mode) {
    std::string letters;
    for (; mode && *mode && *mode != L','; ++mode) {
        if (std::wcschr(L"rwab+x", *mode))
            letters += static_cast<char>(*mode);
    }
    const bool updates = letters.find('+') != std::string::npos;
    const DWORD both = GENERIC_READ | GENERIC_WRITE;
    switch (letters.empty() ? '\0' : letters.front()) {
        case 'r':
            return {updates ? both : GENERIC_READ, OPEN_EXISTING, updates ? _O_RDWR : _O_RDONLY,
                    updates ? "r+b" : "rb"};
        case 'w':
            return {updates ? both : GENERIC_WRITE,
                    letters.find('x') == std::string::npos ? DWORD{CREATE_ALWAYS} : DWORD{CREATE_NEW},
                    updates ? _O_RDWR : _O_WRONLY, updates ? "w+b" : "wb"};
        case 'a':
            return {updates ? both : GENERIC_WRITE, OPEN_ALWAYS, (updates ? _O_RDWR : _O_WRONLY) | _O_APPEND,
                    updates ? "a+b" : "ab"};
        default:
            return {};
    }
}

std::FILE* Refused(int error) {
    errno = error;
    return nullptr;
}

}  // namespace

namespace desktop {

BOOL CreateDirectoryW(LPCWSTR path, SECURITY_ATTRIBUTES* security) {
    const std::wstring host = RequireHostPath(path);
    return !host.empty() && ::CreateDirectoryW(host.c_str(), security);
}

BOOL RemoveDirectoryW(LPCWSTR path) {
    const std::wstring host = RequireHostPath(path);
    if (host.empty())
        return FALSE;
    return IsDeviceRoot(path) ? Refuse(ERROR_ACCESS_DENIED) : ::RemoveDirectoryW(host.c_str());
}

BOOL DeleteFileW(LPCWSTR path) {
    const std::wstring host = RequireHostPath(path);
    return !host.empty() && ::DeleteFileW(host.c_str());
}

BOOL MoveFileW(LPCWSTR from, LPCWSTR to) {
    const std::wstring hostFrom = RequireHostPath(from);
    const std::wstring hostTo = RequireHostPath(to);
    if (hostFrom.empty() || hostTo.empty())
        return FALSE;
    if (IsDeviceRoot(from) || IsDeviceRoot(to))
        return Refuse(ERROR_ACCESS_DENIED);
    return ::MoveFileW(hostFrom.c_str(), hostTo.c_str());
}

DWORD GetFileAttributesW(LPCWSTR path) {
    const std::wstring host = RequireHostPath(path);
    return host.empty() ? INVALID_FILE_ATTRIBUTES : ::GetFileAttributesW(host.c_str());
}

// Opened by the C library itself, a file could not be replaced meanwhile, nor removed.
std::FILE* _wfopen(const wchar_t* path, const wchar_t* mode) {
    const OpenMode parsed = ParseMode(mode);
    const std::wstring host = RequireHostPath(path);
    if (host.empty() || parsed.name.empty())
        return Refused(EINVAL);
    constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    Handle file(CreateFileW(host.c_str(), parsed.access, kShared, nullptr, parsed.disposition,
                            FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file.IsOpen()) {
        const DWORD error = GetLastError();
        return Refused(error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND ? ENOENT : EACCES);
    }
    // Such as the console or a serial line, which have names in every folder.
    if (GetFileType(file.Get()) != FILE_TYPE_DISK)
        return Refused(EACCES);
    const int descriptor = _open_osfhandle(reinterpret_cast<intptr_t>(file.Get()), parsed.flags | _O_BINARY);
    if (descriptor < 0)
        return nullptr;
    file.Release();
    std::FILE* const stream = _fdopen(descriptor, parsed.name.c_str());
    if (!stream)
        _close(descriptor);
    return stream;
}

}  // namespace desktop
}  // namespace korvane
