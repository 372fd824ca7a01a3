#include <mutex>
#include <string>

#include "platform/Simulation.h"
#include "platform/files/DefaultDeviceRoot.h"

namespace korvane {
namespace {

struct RootSetting {
    std::mutex mutex;
    bool isChosen = false;
    std::string folder;
};

RootSetting& TheRoot() {
    // Never destroyed: static destructors of other modules may still write files.
    static RootSetting& root = *new RootSetting;
    return root;
}

}  // namespace

void SetDeviceRoot(const std::string& utf8Folder) {
    RootSetting& root = TheRoot();
    const std::lock_guard<std::mutex> lock(root.mutex);
    root.folder = utf8Folder;
    root.isChosen = !utf8Folder.empty();
}

std::string DeviceRoot() {
    RootSetting& root = TheRoot();
    const std::lock_guard<std::mutex> lock(root.mutex);
    if (!root.isChosen) {
        root.folder = DefaultDeviceRoot();
        root.isChosen = true;
    }
    return root.folder;
}

}  // namespace korvane
