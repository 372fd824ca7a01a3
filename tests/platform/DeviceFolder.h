#pragma once

#include <filesystem>
#include <string>

namespace korvane {

/// An empty folder of its own as the device root, removed at the end.
class DeviceFolder {
  public:
    DeviceFolder();
    ~DeviceFolder();
    DeviceFolder(const DeviceFolder&) = delete;
    DeviceFolder& operator=(const DeviceFolder&) = delete;

    /// The host path, in UTF-8.
    const std::string& Path() const { return path_; }

    /// Makes a host file below the root, and the folders above it.
    void Write(const std::string& name, const std::string& contents = "x") const;
    std::string Read(const std::string& name) const;

    /// The host path of an entry below the root.
    std::filesystem::path At(const std::string& name) const;

  private:
    std::string path_;
};

/// Where a path of the device lies on the host. Two such are equal whichever separators they have.
std::filesystem::path HostPath(const wchar_t* devicePath);

}  // namespace korvane
