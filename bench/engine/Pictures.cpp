#include "bench/engine/Pictures.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <random>

#include "platform/Files.h"

namespace korvane::bench {

namespace {

std::uint32_t Premultiply(unsigned alpha, unsigned red, unsigned green, unsigned blue) {
    const auto part = [alpha](unsigned channel) { return (channel * alpha + 127) / 255; };
    return alpha << 24 | part(red) << 16 | part(green) << 8 | part(blue);
}

template <class AlphaAt>
Picture Draw(int width, int height, AlphaAt alphaAt) {
    Picture picture{width, height, {}};
    picture.pixels.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    std::mt19937 random(42);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const unsigned color = random();
            picture.pixels.push_back(Premultiply(static_cast<unsigned>(std::clamp(alphaAt(x, y), 0, 255)),
                                                 color & 255, color >> 8 & 255, color >> 16 & 255));
        }
    }
    return picture;
}

}  // namespace

Picture OpaquePicture(int width, int height) {
    return Draw(width, height, [](int, int) { return 255; });
}

Picture SoftPicture(int width, int height) {
    return Draw(width, height, [](int x, int y) { return 1 + (x * 7 + y * 13) % 254; });
}

Picture MixedPicture(int width, int height) {
    return Draw(width, height, [](int x, int y) {
        const int cellX = x % 80 - 40;
        const int cellY = y % 80 - 40;
        const double distance = std::sqrt(static_cast<double>(cellX * cellX + cellY * cellY));
        return static_cast<int>((34.0 - distance) * 32.0);
    });
}

Picture IconPicture(int width, int height) {
    return Draw(width, height, [width, height](int x, int y) {
        const double dx = x + 0.5 - width / 2.0;
        const double dy = y + 0.5 - height / 2.0;
        return static_cast<int>((width / 2.0 - std::sqrt(dx * dx + dy * dy)) * 255.0);
    });
}

Picture NeedlePicture(int width, int height) {
    return Draw(width, height, [width, height](int x, int y) {
        const double half = height / 2.0 * (1.0 - static_cast<double>(x) / width);
        return static_cast<int>((half - std::fabs(y + 0.5 - height / 2.0)) * 255.0);
    });
}

Picture ShadowPicture(int width, int height) {
    Picture picture{width, height, {}};
    for (int y = 0; y < height; ++y) {
        const auto alpha = static_cast<unsigned>(250 - 240 * y / height);
        picture.pixels.insert(picture.pixels.end(), static_cast<std::size_t>(width), alpha << 24);
    }
    return picture;
}

CLQSurfHandle LoadAsImage(const Picture& picture, const std::wstring& name) {
    CLQSurfHandle drawn =
        CLQSurfManager::GetInstance()->CreateSurface(picture.width, picture.height, eSurface_ARGB8888, true);
    CLQSurface* surface = drawn.GetSurface();
    for (int y = 0; y < picture.height; ++y) {
        std::memcpy(static_cast<unsigned char*>(surface->GetPixels()) +
                        static_cast<std::ptrdiff_t>(y) * surface->GetPitch(),
                    picture.pixels.data() + static_cast<std::ptrdiff_t>(y) * picture.width,
                    static_cast<std::size_t>(picture.width) * 4);
    }
    surface->Touch();
    std::vector<unsigned char> bytes(static_cast<std::size_t>(drawn.CalcStoreMemSize()));
    drawn.SaveSurface(bytes.data(), static_cast<int>(bytes.size()));
    const std::wstring file = L"\\" + name + L".lqi";
    ReplaceFileAtomically(file.c_str(), bytes.data(), bytes.size());
    return CLQSurfManager::GetInstance()->CreateSurface(file.c_str(), true);
}

}  // namespace korvane::bench
