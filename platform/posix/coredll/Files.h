#pragma once

#include <cstdio>

#include "platform/posix/coredll/Types.h"

// Every path is a path of the device; platform/Simulation.h says where it lies on the host.

typedef struct _FILETIME {
    DWORD dwLowDateTime;
    DWORD dwHighDateTime;
} FILETIME;

typedef struct _WIN32_FIND_DATAW {
    DWORD dwFileAttributes;
    FILETIME ftCreationTime;
    FILETIME ftLastAccessTime;
    FILETIME ftLastWriteTime;
    DWORD nFileSizeHigh;
    DWORD nFileSizeLow;
    DWORD dwReserved0;
    DWORD dwReserved1;
    WCHAR cFileName[MAX_PATH];
    WCHAR cAlternateFileName[14];
} WIN32_FIND_DATAW;

typedef struct _SECURITY_ATTRIBUTES SECURITY_ATTRIBUTES;

constexpr DWORD FILE_ATTRIBUTE_READONLY = 0x00000001;
constexpr DWORD FILE_ATTRIBUTE_DIRECTORY = 0x00000010;
constexpr DWORD FILE_ATTRIBUTE_NORMAL = 0x00000080;
constexpr DWORD INVALID_FILE_ATTRIBUTES = 0xFFFFFFFF;

extern "C" {

/// Finds the entries of one folder whose names fit the last component of `pattern` (`*`, `?`, no regard to
/// case), in the order of their names. As on the device, "." and ".." are not among them.
/// INVALID_HANDLE_VALUE when nothing fits.
KORVANE_API HANDLE FindFirstFileW(LPCWSTR pattern, WIN32_FIND_DATAW* data);
KORVANE_API BOOL FindNextFileW(HANDLE search, WIN32_FIND_DATAW* data);
KORVANE_API BOOL FindClose(HANDLE search);

/// Makes one folder; the one above it must exist.
KORVANE_API BOOL CreateDirectoryW(LPCWSTR path, SECURITY_ATTRIBUTES* security);
/// Only an empty folder, and never the device's root.
KORVANE_API BOOL RemoveDirectoryW(LPCWSTR path);
KORVANE_API BOOL DeleteFileW(LPCWSTR path);
/// Renames a file or folder. Fails when the new name is taken; a change of case alone is allowed.
KORVANE_API BOOL MoveFileW(LPCWSTR from, LPCWSTR to);
KORVANE_API DWORD GetFileAttributesW(LPCWSTR path);

/// fopen for a path of the device. The modes are those of fopen; a `t` or a `, ccs=` part is ignored. Null
/// for a folder or anything else that is not a plain file.
KORVANE_API std::FILE* _wfopen(const wchar_t* path, const wchar_t* mode);
}
