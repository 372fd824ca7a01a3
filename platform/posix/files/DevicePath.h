#pragma once

#include <string>
#include <vector>

#include "platform/coredll.h"

namespace korvane {

/// The components of a path of the device in UTF-8, "." and ".." worked out. Empty for the root, and for
/// null.
std::vector<std::string> DeviceComponents(LPCWSTR path);

/// The host path of these components below the device root.
std::string HostPathOf(const std::vector<std::string>& components);

/// The host path for a call that fails without one: empty, with the last error set, for null and empty paths.
std::string RequireHostPath(LPCWSTR path);

}  // namespace korvane
