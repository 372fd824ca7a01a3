#include "tools/commandline/ScreenSize.h"

#include <cstdio>

#include "engine/draw/SurfManager.h"

namespace korvane::tools {

std::string ParseScreenSize(const std::string& text, ScreenSize& size) {
    ScreenSize read;
    int end = 0;
    if (std::sscanf(text.c_str(), "%9dx%9d%n", &read.width, &read.height, &end) != 2 ||
        static_cast<std::size_t>(end) != text.size() || read.width <= 0 || read.height <= 0)
        return "is not a size such as 800x480";
    if (read.width > kMaxSurfaceExtent || read.height > kMaxSurfaceExtent ||
        read.width > kMaxSurfacePixels / read.height)
        return "is too large: a screen has at most " + std::to_string(kMaxSurfaceExtent) +
               " pixels a side and " + std::to_string(kMaxSurfacePixels) + " in all";
    size = read;
    return {};
}

}  // namespace korvane::tools
