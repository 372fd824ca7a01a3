#pragma once

#include <filesystem>
#include <gtest/gtest.h>
#include <string>

#include "tests/platform/DeviceFolder.h"

namespace korvane::test {

/// A scratch device, which has no service at first.
class LinkDevice : public testing::Test {
  protected:
    ~LinkDevice() override;

    std::filesystem::path At(const std::string& name) const;

    /// The service that this project has.
    void InstallRealService() const;

    /// One of the libraries that the build makes from StubService.cpp.
    void InstallStub(const std::string& name) const;

  private:
    DeviceFolder device_;
};

}  // namespace korvane::test
