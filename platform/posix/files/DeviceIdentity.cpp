#include "platform/files/DeviceIdentity.h"

#include <filesystem>
#include <unistd.h>

#include "platform/Simulation.h"

namespace korvane {

std::string DeviceIdentity() {
    const std::filesystem::path root(DeviceRoot());
    std::error_code failure;
    std::filesystem::path canonical = std::filesystem::weakly_canonical(root, failure);
    if (failure)
        canonical = root;
    // A root that does not exist yet keeps the separator at its end.
    if (!canonical.has_filename())
        canonical = canonical.parent_path();
    return std::to_string(geteuid()) + canonical.native();
}

}  // namespace korvane
