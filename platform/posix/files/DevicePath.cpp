#include "platform/posix/files/DevicePath.h"

#include <cstdlib>
#include <dirent.h>
#include <memory>
#include <string_view>
#include <sys/stat.h>

#include "platform/CaseFold.h"
#include "platform/Simulation.h"
#include "platform/Unicode.h"
#include "platform/files/DefaultDeviceRoot.h"
#include "platform/files/PluggedMedia.h"
#include "platform/posix/LastError.h"

namespace korvane {
namespace {

bool Exists(const std::string& hostPath) {
    struct stat status {};
    return lstat(hostPath.c_str(), &status) == 0;
}

// The first name in the folder, in byte order, that differs from `name` only in case; empty when there is
// none.
std::string FindFolded(const std::string& hostFolder, const std::string& name) {
    const std::unique_ptr<DIR, int (*)(DIR*)> folder(opendir(hostFolder.c_str()), &closedir);
    if (!folder)
        return {};
    const std::wstring wanted = FromUtf8(name);
    std::string found;
    while (const dirent* entry = readdir(folder.get())) {
        const std::string_view candidate = entry->d_name;
        if ((found.empty() || candidate < found) && EqualFolded(FromUtf8(candidate), wanted))
            found = candidate;
    }
    return found;
}

}  // namespace

std::string DefaultDeviceRoot() {
    const char* const chosen = std::getenv("KORVANE_DEVICE_ROOT");
    return chosen && *chosen ? chosen : KORVANE_DEFAULT_DEVICE_ROOT;
}

std::string HostPathOf(const std::vector<std::wstring_view>& components) {
    std::string path = components.empty() ? "" : PluggedMedium(components.front());
    const std::size_t first = path.empty() ? 0 : 1;
    if (path.empty())
        path = DeviceRoot();
    bool exists = true;
    for (std::size_t i = first; i < components.size(); ++i) {
        const std::string component = ToUtf8(components[i]);
        if (path.empty() || path.back() != '/')
            path += '/';
        const std::string asGiven = path + component;
        if (!exists || Exists(asGiven)) {
            path = asGiven;
            continue;
        }
        const std::string found = FindFolded(path, component);
        exists = !found.empty();
        path += exists ? found : component;
    }
    return path;
}

std::string RequireHostPath(LPCWSTR path) {
    std::string hostPath = ToHostPath(path);
    if (hostPath.empty())
        SetLastError(ERROR_PATH_NOT_FOUND);
    return hostPath;
}

std::string ToHostPath(const wchar_t* devicePath) {
    if (!devicePath || !*devicePath)
        return {};
    return HostPathOf(DeviceComponents(devicePath));
}

}  // namespace korvane
