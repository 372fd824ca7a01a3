#include "platform/files/DeviceComponents.h"

#include <algorithm>

namespace korvane {

std::vector<std::wstring_view> DeviceComponents(std::wstring_view path) {
    std::vector<std::wstring_view> components;
    while (!path.empty()) {
        const std::size_t end = std::min(path.find_first_of(L"\\/"), path.size());
        const std::wstring_view component = path.substr(0, end);
        path.remove_prefix(std::min(end + 1, path.size()));
        if (component.empty() || component == L".")
            continue;
        if (component != L"..")
            components.push_back(component);
        else if (!components.empty())
            components.pop_back();
    }
    return components;
}

}  // namespace korvane
