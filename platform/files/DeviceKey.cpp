#include "platform/DeviceKey.h"

#include <cstdint>
#include <cstdio>

#include "platform/files/DeviceIdentity.h"

namespace korvane {

std::string DeviceKey() {
    // FNV-1a. Devices of one user need different keys, nothing is kept secret by them.
    std::uint64_t hash = 0xCBF29CE484222325;
    for (const char character : DeviceIdentity())
        hash = (hash ^ static_cast<unsigned char>(character)) * 0x100000001B3;
    char digits[17];
    std::snprintf(digits, sizeof(digits), "%08x%08x", static_cast<unsigned>(hash >> 32),
                  static_cast<unsigned>(hash));
    return digits;
}

}  // namespace korvane
