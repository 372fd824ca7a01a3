#pragma once

#include <cstdint>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace korvane::test {

/// An empty folder, with a space in its name, for one test.
class TemporaryFolder : public ::testing::Test {
  protected:
    void SetUp() override;
    void TearDown() override;

    std::filesystem::path At(const std::string& name) const { return (folder_ / name).make_preferred(); }
    std::vector<std::uint8_t> Read(const std::string& name) const;
    void Write(const std::string& name, const std::vector<std::uint8_t>& bytes) const;
    /// Names of all files in the folder and below it, sorted.
    std::vector<std::string> Files() const;

  private:
    std::filesystem::path folder_;
};

}  // namespace korvane::test
