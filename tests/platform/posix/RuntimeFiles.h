#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace korvane {

/// The runtime folder of this test program.
std::filesystem::path RuntimeFolderPath();

/// Everything below it that ends in `suffix`.
std::vector<std::filesystem::path> RuntimeFiles(const std::string& suffix = "");

/// Makes the processes that are started meanwhile use a runtime folder of another name, which it does not
/// make itself. At its end it is removed, and so is what lies beside it.
class OtherRuntimeFolder {
  public:
    explicit OtherRuntimeFolder(const std::filesystem::path& name);
    ~OtherRuntimeFolder();
    OtherRuntimeFolder(const OtherRuntimeFolder&) = delete;
    OtherRuntimeFolder& operator=(const OtherRuntimeFolder&) = delete;

    std::filesystem::path Path() const { return beside_ / name_; }
    std::filesystem::path Beside() const { return beside_; }

  private:
    std::filesystem::path before_;
    std::filesystem::path beside_;
    std::filesystem::path name_;
};

}  // namespace korvane
