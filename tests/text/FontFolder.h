#pragma once

#include <filesystem>
#include <string>

namespace korvane::test {

/// A device root of its own with an empty font folder; removed at the end. To be made before the first font
/// is asked for.
class FontFolder {
  public:
    FontFolder();
    ~FontFolder();
    FontFolder(const FontFolder&) = delete;
    FontFolder& operator=(const FontFolder&) = delete;

    void Write(const std::string& file, const std::string& bytes) const;
    /// Contents of one of the fonts that the build gives the device.
    static std::string DeviceFont(const std::string& file);

  private:
    std::filesystem::path root_;
};

}  // namespace korvane::test
