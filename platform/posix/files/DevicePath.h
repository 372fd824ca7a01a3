#pragma once

#include <string>
#include <vector>

#include "platform/coredll.h"
#include "platform/files/DeviceComponents.h"

namespace korvane {

/// The host path of these components below the device root.
std::string HostPathOf(const std::vector<std::wstring_view>& components);

/// The host path for a call that fails without one: empty, with the last error set, for null and empty paths.
std::string RequireHostPath(LPCWSTR path);

}  // namespace korvane
