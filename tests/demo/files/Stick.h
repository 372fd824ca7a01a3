#pragma once

#include <filesystem>
#include <string>

namespace korvane::test {

/// The stick in a device's folder on the host; the device is without one until something is written.
class Stick {
  public:
    explicit Stick(const std::filesystem::path& deviceFolder) : folder_(deviceFolder / "USB") {}

    /// Makes a file, or a folder where the name, in UTF-8, ends with a slash, and the folders above it, as
    /// far as the host can have such names.
    void Write(const std::string& name, std::size_t bytes = 1) const;
    void Remove(const std::string& name) const;
    /// Takes everything away, the stick's own folder too.
    void Remove() const { std::filesystem::remove_all(folder_); }

    const std::filesystem::path& Folder() const { return folder_; }

  private:
    std::filesystem::path folder_;
};

}  // namespace korvane::test
