#pragma once

#include <string>

namespace korvane {

/// The path from its volume on, "." and ".." worked out.
std::wstring FullPath(const std::wstring& path);

}  // namespace korvane
