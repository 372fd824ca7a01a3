#pragma once

#include <string>

#include "platform/Export.h"

namespace korvane {

/// Names the device, for what its processes share beside its files: windows, memory, locks. 16 hexadecimal
/// digits, a hash of the user and the device root, whichever way its path is written. Users do not share.
KORVANE_API std::string DeviceKey();

}  // namespace korvane
