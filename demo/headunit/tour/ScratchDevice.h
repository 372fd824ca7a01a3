#pragma once

#include <filesystem>
#include <string>

namespace korvane::demo {

/// A device of its own for one run: programs, pictures and texts of the present device, settings as from the
/// factory, a fresh system record, and nobody else on it. It takes the place of the present device until the
/// object's end, which removes its files.
class ScratchDevice {
  public:
    ScratchDevice() = default;
    ScratchDevice(const ScratchDevice&) = delete;
    ScratchDevice& operator=(const ScratchDevice&) = delete;
    ~ScratchDevice();

    /// False when its folder cannot be made; the device is then the present one.
    bool Enter();

  private:
    std::filesystem::path root_;
    std::string present_;
};

}  // namespace korvane::demo
