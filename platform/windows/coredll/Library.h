#pragma once

#include "platform/Export.h"
#include "platform/windows/System.h"

namespace korvane::desktop {

/// Loads a library by its path on the device.
KORVANE_API HMODULE LoadLibraryW(LPCWSTR path);

}  // namespace korvane::desktop

/// The device's wide form of GetProcAddress, which desktop Windows lacks. Exported names are plain ASCII: any
/// other name finds nothing.
KORVANE_API FARPROC GetProcAddressW(HMODULE module, LPCWSTR name);

#ifndef KORVANE_SYSTEM_CALLS
#define LoadLibraryW korvane::desktop::LoadLibraryW
#endif
