#pragma once

#include <cstdio>
#include <cwchar>

#include "platform/Export.h"
#include "platform/windows/System.h"

// Every path is a path of the device; platform/Simulation.h says where it lies on this computer.

namespace korvane::desktop {

/// As on the device, "." and ".." are not among the entries.
KORVANE_API HANDLE FindFirstFileW(LPCWSTR pattern, WIN32_FIND_DATAW* data);
KORVANE_API BOOL FindNextFileW(HANDLE search, WIN32_FIND_DATAW* data);

KORVANE_API BOOL CreateDirectoryW(LPCWSTR path, SECURITY_ATTRIBUTES* security);
/// Only an empty folder, and never the device's root.
KORVANE_API BOOL RemoveDirectoryW(LPCWSTR path);
KORVANE_API BOOL DeleteFileW(LPCWSTR path);
KORVANE_API BOOL MoveFileW(LPCWSTR from, LPCWSTR to);
KORVANE_API DWORD GetFileAttributesW(LPCWSTR path);

/// Always binary; a `t` or a `, ccs=` part of the mode is ignored. Null for a folder.
KORVANE_API std::FILE* _wfopen(const wchar_t* path, const wchar_t* mode);

}  // namespace korvane::desktop

#ifndef KORVANE_SYSTEM_CALLS
#define FindFirstFileW korvane::desktop::FindFirstFileW
#define FindNextFileW korvane::desktop::FindNextFileW
#define CreateDirectoryW korvane::desktop::CreateDirectoryW
#define RemoveDirectoryW korvane::desktop::RemoveDirectoryW
#define DeleteFileW korvane::desktop::DeleteFileW
#define MoveFileW korvane::desktop::MoveFileW
#define GetFileAttributesW korvane::desktop::GetFileAttributesW
#define _wfopen korvane::desktop::_wfopen
#endif
