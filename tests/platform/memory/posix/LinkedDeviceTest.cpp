#include <filesystem>
#include <gtest/gtest.h>

#include "platform/DeviceKey.h"
#include "platform/Simulation.h"

#include "tests/platform/DeviceFolder.h"

namespace korvane {
namespace {

TEST(DeviceKey, IsTheSameBehindALink) {
    const DeviceFolder device;
    const std::string key = DeviceKey();
    std::filesystem::create_directory_symlink(device.Path(), device.At("itself"));
    for (const char* const way : {"/itself", "/itself/"}) {
        SetDeviceRoot(device.Path() + way);
        EXPECT_EQ(DeviceKey(), key) << way;
    }
}

}  // namespace
}  // namespace korvane
