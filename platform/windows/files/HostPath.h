#pragma once

#include <string>

namespace korvane {

/// Where a path of the device lies, as the system's own calls take it, long ones too. Empty, with the last
/// error set, for null and empty paths and for those of more than 32000 UTF-16 units.
std::wstring RequireHostPath(const wchar_t* devicePath);

/// Whether the path is that of the device root itself. Never where the system resolves the device's paths.
bool IsDeviceRoot(const wchar_t* devicePath);

}  // namespace korvane
