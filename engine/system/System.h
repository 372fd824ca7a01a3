#pragma once

#include <string>

#include "platform/Export.h"

extern "C" {

/// Creates a directory and the missing ones above it. True when it exists afterwards; false for null, an
/// empty path and one of 260 characters or more.
KORVANE_API bool CreateDir(const wchar_t* path);

/// True when a file (not a directory) of that name exists. False for a null name.
KORVANE_API bool IsFileExist(const wchar_t* path);

/// Milliseconds on the clock of the operating system's message times; wraps after 49.7 days.
KORVANE_API unsigned int GetCurrentMS();

/// True while the user interface is in cursor (key navigation) mode. A key that moves the focus enters the
/// mode, a touch leaves it.
KORVANE_API bool IsCursorState();
}

inline bool CreateDir(const std::wstring& path) {
    return CreateDir(path.c_str());
}
inline bool IsFileExist(const std::wstring& path) {
    return IsFileExist(path.c_str());
}

namespace korvane {

/// Enters or leaves cursor mode and has the controls that have the focus repainted.
KORVANE_API void SetCursorState(bool cursor);

/// The folders in which names without a folder are looked for.
enum class ResourceKind { Image, Layout, Language, Font };

/// The device folder that holds the sub-folders Image, Layout, Language and Font;
/// "\NandFlash\Application\Resource" unless a program sets another. An empty folder goes back to that.
KORVANE_API void SetResourceFolder(const std::wstring& folder);
/// The name as it stands if it names a folder (has a separator of either kind) or is empty, else inside the
/// folder of its kind.
KORVANE_API std::wstring ResourcePath(ResourceKind kind, const std::wstring& name);

}  // namespace korvane
