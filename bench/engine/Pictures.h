#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "engine/Korvane.h"

namespace korvane::bench {

/// Premultiplied ARGB pixels without gaps.
struct Picture {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels;
};

Picture OpaquePicture(int width, int height);
/// Alpha between 1 and 254 everywhere.
Picture SoftPicture(int width, int height);
/// A picture as designers draw them: empty around, a solid body with a soft rim, in runs of some dozen
/// pixels.
Picture MixedPicture(int width, int height);
/// A disc with a smooth edge, as on a button.
Picture IconPicture(int width, int height);
/// A tapering needle that points right.
Picture NeedlePicture(int width, int height);
/// Black that fades from top to bottom, as a shadow over a list.
Picture ShadowPicture(int width, int height);

/// The picture as an engine image that was loaded from a file, as all images of an application are.
CLQSurfHandle LoadAsImage(const Picture& picture, const std::wstring& name);

}  // namespace korvane::bench
