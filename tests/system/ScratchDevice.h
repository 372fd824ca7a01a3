#pragma once

#include <filesystem>
#include <string>
#include <string_view>

/// A device root in a folder of its own, empty at first and removed at the end. Names are UTF-8 host paths
/// below the root.
class ScratchDevice {
  public:
    ScratchDevice();
    ~ScratchDevice();
    ScratchDevice(const ScratchDevice&) = delete;
    ScratchDevice& operator=(const ScratchDevice&) = delete;

    /// Makes the folders above the file, too.
    void Write(const std::string& name, std::string_view bytes) const;
    std::string Read(const std::string& name) const;
    std::filesystem::path HostPath(const std::string& name) const { return root_ / name; }

    /// The number of files and folders in a folder.
    int CountEntries(const std::string& folder) const;

  private:
    std::filesystem::path root_;
};
