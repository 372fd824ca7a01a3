#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace korvane {

/// The components of a path of the device, "." and ".." worked out. Empty for the root.
std::vector<std::wstring_view> DeviceComponents(std::wstring_view path);

}  // namespace korvane
