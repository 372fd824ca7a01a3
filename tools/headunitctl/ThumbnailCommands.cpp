#include "tools/headunitctl/ThumbnailCommands.h"

#include "module/ThumbNail.h"

#include "tools/png/SurfacePicture.h"

namespace korvane::tools {

namespace {

constexpr char kNoPicture[] = "the device's system-information service keeps no picture";

}  // namespace

Outcome PutThumbnail(const std::string& pngFile) {
    png::Picture picture;
    std::string reason;
    if (!png::ReadPng(pngFile, picture, reason))
        return Outcome::Failure(pngFile + ": " + reason);
    CLQSurfHandle surface = png::ToSurface(picture);
    if (!surface.GetSurface())
        return Outcome::Failure(pngFile + ": there is not enough memory");
    return SetThumbNail(surface) == 1 ? Outcome() : Outcome::Failure(kNoPicture);
}

Outcome GetThumbnail(const std::string& pngFile) {
    CLQSurfHandle surface;
    if (GetThumbNail(surface) != 1)
        return Outcome::Failure(kNoPicture);
    std::string reason;
    if (!png::WritePng(pngFile, png::FromSurface(surface), reason))
        return Outcome::Failure(pngFile + ": " + reason);
    return {};
}

}  // namespace korvane::tools
