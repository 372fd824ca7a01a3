#pragma once

#include <string>

namespace korvane {

/// The user and the device root in one text, the same whichever way the root's path is written.
std::string DeviceIdentity();

}  // namespace korvane
