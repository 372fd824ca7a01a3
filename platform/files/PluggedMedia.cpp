#include "platform/files/PluggedMedia.h"

#include <algorithm>
#include <mutex>
#include <vector>

#include "platform/CaseFold.h"
#include "platform/Simulation.h"

namespace korvane {
namespace {

struct Medium {
    std::wstring name;
    std::string hostFolder;
};

struct Media {
    std::mutex mutex;
    std::vector<Medium> plugged;
};

Media& TheMedia() {
    // Never destroyed: static destructors of other modules may still write files.
    static Media& media = *new Media;
    return media;
}

auto Find(std::vector<Medium>& plugged, std::wstring_view name) {
    return std::find_if(plugged.begin(), plugged.end(),
                        [name](const Medium& medium) { return EqualFolded(medium.name, name); });
}

}  // namespace

void PlugMedium(const std::wstring& name, const std::string& utf8Folder) {
    Media& media = TheMedia();
    const std::lock_guard<std::mutex> lock(media.mutex);
    const auto found = Find(media.plugged, name);
    if (found != media.plugged.end())
        media.plugged.erase(found);
    if (!utf8Folder.empty())
        media.plugged.push_back({name, utf8Folder});
}

std::string PluggedMedium(std::wstring_view name) {
    Media& media = TheMedia();
    const std::lock_guard<std::mutex> lock(media.mutex);
    if (media.plugged.empty())
        return {};
    const auto found = Find(media.plugged, name);
    return found == media.plugged.end() ? std::string() : found->hostFolder;
}

}  // namespace korvane
