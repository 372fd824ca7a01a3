#pragma once

#include <filesystem>

namespace korvane::test {

/// Puts the system-information service into a scratch device, where CLQShareMemLink loads it from.
/// `deviceFolder` is the device root on the host.
void InstallService(const std::filesystem::path& deviceFolder);

/// The same with another library in its place.
void InstallService(const std::filesystem::path& deviceFolder, const std::filesystem::path& library);

}  // namespace korvane::test
