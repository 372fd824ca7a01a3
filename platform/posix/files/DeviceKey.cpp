#include "platform/posix/files/DeviceKey.h"

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <string_view>
#include <unistd.h>

#include "platform/Simulation.h"

namespace korvane {
namespace {

// FNV-1a. Devices of one user need different keys, nothing is kept secret by them.
std::uint64_t HashOf(std::string_view text) {
    std::uint64_t hash = 0xCBF29CE484222325;
    for (const char character : text)
        hash = (hash ^ static_cast<unsigned char>(character)) * 0x100000001B3;
    return hash;
}

}  // namespace

std::string DeviceKey() {
    const std::filesystem::path root(DeviceRoot());
    std::error_code failure;
    std::filesystem::path canonical = std::filesystem::weakly_canonical(root, failure);
    if (failure)
        canonical = root;
    // A root that does not exist yet keeps the separator at its end.
    if (!canonical.has_filename())
        canonical = canonical.parent_path();
    char digits[17];
    std::snprintf(digits, sizeof(digits), "%016llx",
                  static_cast<unsigned long long>(HashOf(std::to_string(geteuid()) + canonical.native())));
    return digits;
}

}  // namespace korvane
