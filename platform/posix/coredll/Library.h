#pragma once

#include "platform/posix/coredll/Types.h"

extern "C" {

/// Loads a shared library by its path on the device, whatever its extension. Each success needs its own
/// FreeLibrary. Null when there is no such file or it cannot be loaded.
KORVANE_API HMODULE LoadLibraryW(LPCWSTR path);

/// The address of an exported function, null when there is none of that name.
KORVANE_API FARPROC GetProcAddressW(HMODULE module, LPCWSTR name);

KORVANE_API BOOL FreeLibrary(HMODULE module);
}
