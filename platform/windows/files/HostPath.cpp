#include "platform/windows/files/HostPath.h"

#include "platform/Simulation.h"
#include "platform/Unicode.h"
#include "platform/files/DeviceComponents.h"
#include "platform/files/PluggedMedia.h"
#include "platform/windows/files/FullPath.h"

namespace korvane {
namespace {

// On a medium that is plugged in or below the root, or as it is given where there is none.
std::wstring Resolve(std::wstring_view devicePath) {
    const std::vector<std::wstring_view> components = DeviceComponents(devicePath);
    std::wstring path = components.empty() ? L"" : FromUtf8(PluggedMedium(components.front()));
    const std::size_t first = path.empty() ? 0 : 1;
    if (path.empty())
        path = FromUtf8(DeviceRoot());
    if (path.empty())
        return std::wstring(devicePath);
    for (std::size_t i = first; i < components.size(); ++i) {
        if (path.back() != L'\\' && path.back() != L'/')
            path += L'\\';
        path += components[i];
    }
    return path;
}

// In UTF-16 units. The system counts a path's bytes in 16 bits, and some versions cut a larger count off
// instead of refusing the path.
constexpr std::size_t kLongestOfAll = 32000;

// The system takes longer paths only in this form, which it leaves as it is.
std::wstring WithoutLimit(const std::wstring& path) {
    // A folder's path leaves room for a short name of a file in it.
    constexpr std::size_t kLongest = MAX_PATH - 12 - 1;
    // A root may be relative to the current folder, which counts.
    const std::wstring full = FullPath(path);
    if (full.size() <= kLongest)
        return path;
    if (full.compare(0, 4, L"\\\\?\\") == 0)
        return full;
    return full.compare(0, 2, L"\\\\") == 0 ? L"\\\\?\\UNC" + full.substr(1) : L"\\\\?\\" + full;
}

}  // namespace

std::wstring RequireHostPath(const wchar_t* devicePath) {
    if (!devicePath || !*devicePath) {
        SetLastError(ERROR_PATH_NOT_FOUND);
        return {};
    }
    const std::wstring path = Resolve(devicePath);
    if (path.size() > kLongestOfAll) {
        SetLastError(ERROR_FILENAME_EXCED_RANGE);
        return {};
    }
    return WithoutLimit(path);
}

bool IsDeviceRoot(const wchar_t* devicePath) {
    return !DeviceRoot().empty() && DeviceComponents(devicePath).empty();
}

std::string ToHostPath(const wchar_t* devicePath) {
    return devicePath && *devicePath ? ToUtf8(Resolve(devicePath)) : std::string();
}

}  // namespace korvane
