#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <vector>

/// Pixels in a buffer that is not a pixel larger than they need, so that a sanitizer sees any step outside.
struct Picture {
    Picture(int pictureWidth, int pictureHeight)
        : width(pictureWidth),
          height(pictureHeight),
          pixels(static_cast<std::size_t>(pictureWidth) * static_cast<std::size_t>(pictureHeight)) {}

    std::uint32_t* At(int x, int y) { return pixels.data() + std::ptrdiff_t{y} * width + x; }
    const std::uint32_t* At(int x, int y) const { return pixels.data() + std::ptrdiff_t{y} * width + x; }

    int width;
    int height;
    std::vector<std::uint32_t> pixels;
};

/// Seeded source of sizes, positions and pixels.
class Dice {
  public:
    explicit Dice(std::uint32_t seed) : engine_(seed) {}

    /// Within low..high, both included.
    int Between(int low, int high) {
        return low + static_cast<int>(engine_() % static_cast<std::uint32_t>(high - low + 1));
    }

    std::uint32_t Bits() { return static_cast<std::uint32_t>(engine_()); }

    /// Any valid premultiplied colour.
    std::uint32_t Color();

    /// Fills a picture with stretches of transparent, opaque and soft pixels of all lengths up to `longest`.
    void Paint(Picture& picture, int longest);

  private:
    std::mt19937 engine_;
};
