#pragma once

#include <string>

namespace korvane {

/// The device root while none is set, in UTF-8. Empty where the system itself resolves the device's paths.
std::string DefaultDeviceRoot();

}  // namespace korvane
