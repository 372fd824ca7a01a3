#pragma once

#include <filesystem>
#include <gtest/gtest.h>
#include <string>

#include "platform/SharedMemory.h"

#include "tests/platform/DeviceFolder.h"
#include "tests/support/InstallService.h"

namespace korvane::test {

/// A scratch device, which has no service at first.
class LinkDevice : public testing::Test {
  protected:
    ~LinkDevice() override { RemoveSharedMemory(); }

    std::filesystem::path At(const std::string& name) const {
        return std::filesystem::u8path(device_.Path()) / name;
    }

    /// The service that this project has.
    void InstallRealService() const { InstallService(At("")); }

    /// One of the libraries that the build makes from StubService.cpp.
    void InstallStub(const std::string& name) const {
        InstallService(At(""), std::filesystem::u8path(KORVANE_TEST_STUBS) / (name + ".dll"));
    }

  private:
    DeviceFolder device_;
};

}  // namespace korvane::test
