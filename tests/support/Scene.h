#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "engine/Korvane.h"

namespace korvane::test {

/// A head unit on the test bench: the memory display, the manual clock at tick 10,000 on 2024-03-15 10:05:00,
/// and a device root of its own, which has the fonts and is removed at the end.
class Scene {
  public:
    explicit Scene(int width = 800, int height = 480);
    Scene(const Scene&) = delete;
    Scene& operator=(const Scene&) = delete;
    ~Scene();

    /// Touches, as the display would report them. Each is dispatched at once, and so is what it causes.
    void Press(int x, int y);
    void Move(int x, int y);
    void Release(int x, int y);
    void Key(int virtualKey);

    /// Dispatches what waits, repaints included, without letting time pass.
    void Pump();
    /// Lets time pass, dispatching each timer at its time.
    void Advance(unsigned ms);

    /// The host folder of the device's image folder; files written there are found by name.
    std::filesystem::path ImageFolder() const;
    std::filesystem::path DeviceFolder() const { return root_; }

    /// The pixel of the back buffer, 0xAARRGGBB.
    std::uint32_t PixelAt(int x, int y) const;
    /// All pixels of the back buffer, row by row.
    std::vector<std::uint32_t> Pixels() const;
    void FillWithGarbage();

  private:
    void Post(unsigned message, int x, int y);

    std::filesystem::path root_;
};

/// All pixels of a 32-bit surface, row by row.
std::vector<std::uint32_t> PixelsOf(CLQSurfHandle surface);

/// Writes a surface as an image file on the host.
void WriteImage(const std::filesystem::path& file, CLQSurfHandle& surface);

}  // namespace korvane::test
