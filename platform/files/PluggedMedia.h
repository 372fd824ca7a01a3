#pragma once

#include <string>
#include <string_view>

namespace korvane {

/// The host folder, in UTF-8, of the medium that is plugged in under this name at the device's root;
/// empty without one. See PlugMedium.
std::string PluggedMedium(std::wstring_view name);

}  // namespace korvane
