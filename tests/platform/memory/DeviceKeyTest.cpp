#include <filesystem>
#include <gtest/gtest.h>

#include "platform/DeviceKey.h"
#include "platform/Simulation.h"

#include "tests/platform/DeviceFolder.h"

namespace korvane {
namespace {

namespace fs = std::filesystem;

TEST(DeviceKey, IsSixteenHexadecimalDigits) {
    const DeviceFolder device;
    const std::string key = DeviceKey();
    EXPECT_EQ(key.size(), 16u);
    EXPECT_EQ(key.find_first_not_of("0123456789abcdef"), std::string::npos) << key;
}

TEST(DeviceKey, IsTheSameHoweverTheRootIsWritten) {
    const DeviceFolder device;
    device.Write("folder/file");
    const std::string key = DeviceKey();
    for (const char* const way : {"/", "/.", "/folder/..", "//folder//../"}) {
        SetDeviceRoot(device.Path() + way);
        EXPECT_EQ(DeviceKey(), key) << way;
    }
    const fs::path before = fs::current_path();
    fs::current_path(fs::u8path(device.Path()));
    SetDeviceRoot(".");
    EXPECT_EQ(DeviceKey(), key) << "relative";
    fs::current_path(before);
}

TEST(DeviceKey, DiffersBetweenDevices) {
    const DeviceFolder one;
    const std::string key = DeviceKey();
    const DeviceFolder other;
    EXPECT_NE(DeviceKey(), key);
    SetDeviceRoot(one.Path());
    EXPECT_EQ(DeviceKey(), key);
}

TEST(DeviceKey, ExistsForARootThatDoesNot) {
    const DeviceFolder device;
    const std::string key = DeviceKey();
    SetDeviceRoot(device.Path() + "/missing");
    const std::string missing = DeviceKey();
    EXPECT_NE(missing, key);
    SetDeviceRoot(device.Path() + "/missing/");
    EXPECT_EQ(DeviceKey(), missing);
    fs::create_directory(fs::u8path(device.Path()) / "missing");
    EXPECT_EQ(DeviceKey(), missing) << "once it was made";
}

}  // namespace
}  // namespace korvane
