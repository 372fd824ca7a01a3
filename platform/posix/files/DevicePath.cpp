#include "platform/posix/files/DevicePath.h"

#include <algorithm>
#include <cstdlib>
#include <dirent.h>
#include <memory>
#include <mutex>
#include <string_view>
#include <sys/stat.h>

#include "platform/CaseFold.h"
#include "platform/Simulation.h"
#include "platform/Unicode.h"
#include "platform/posix/LastError.h"

namespace korvane {
namespace {

struct RootSetting {
    std::mutex mutex;
    std::string folder;
};

RootSetting& TheRoot() {
    // Never destroyed: static destructors of other modules may still write files.
    static RootSetting& root = *new RootSetting;
    return root;
}

std::string DefaultRoot() {
    const char* const chosen = std::getenv("KORVANE_DEVICE_ROOT");
    return chosen && *chosen ? chosen : KORVANE_DEFAULT_DEVICE_ROOT;
}

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

std::vector<std::string> DeviceComponents(LPCWSTR path) {
    std::vector<std::string> components;
    std::wstring_view rest = path ? path : L"";
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find_first_of(L"\\/"), rest.size());
        const std::wstring_view component = rest.substr(0, end);
        rest.remove_prefix(std::min(end + 1, rest.size()));
        if (component.empty() || component == L".")
            continue;
        if (component != L"..")
            components.push_back(ToUtf8(component));
        else if (!components.empty())
            components.pop_back();
    }
    return components;
}

std::string HostPathOf(const std::vector<std::string>& components) {
    std::string path = DeviceRoot();
    bool exists = true;
    for (const std::string& component : components) {
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

void SetDeviceRoot(const std::string& utf8Folder) {
    RootSetting& root = TheRoot();
    const std::lock_guard<std::mutex> lock(root.mutex);
    root.folder = utf8Folder;
}

std::string DeviceRoot() {
    RootSetting& root = TheRoot();
    const std::lock_guard<std::mutex> lock(root.mutex);
    if (root.folder.empty())
        root.folder = DefaultRoot();
    return root.folder;
}

std::string ToHostPath(const wchar_t* devicePath) {
    if (!devicePath || !*devicePath)
        return {};
    return HostPathOf(DeviceComponents(devicePath));
}

}  // namespace korvane
