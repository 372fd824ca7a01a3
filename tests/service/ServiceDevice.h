#pragma once

#include <filesystem>
#include <gtest/gtest.h>
#include <string>

#include "tests/platform/DeviceFolder.h"
#include "tests/service/LoadedService.h"

namespace korvane::test {

/// A scratch device on which the service was just put.
class DeviceWithService {
  protected:
    DeviceWithService();
    ~DeviceWithService();

    DeviceFolder device;
};

/// The same, with the service loaded.
class ServiceDevice : public testing::Test, protected DeviceWithService, protected LoadedService {
  protected:
    /// What a restart of the device leaves of the service: its file. Only processes that are started after it
    /// and this one's first use of the service find the memory anew.
    static void Restart();

    std::filesystem::path SetupFile() const;
    std::string ReadSetupFile() const;
    void WriteSetupFile(const std::string& contents) const;
};

}  // namespace korvane::test
