#include "tools/png/SurfacePicture.h"

#include <cstring>

#include "engine/draw/SurfManager.h"

namespace korvane::png {

CLQSurfHandle ToSurface(const Picture& picture) {
    CLQSurfHandle surface =
        CLQSurfManager::GetInstance()->CreateSurface(picture.width, picture.height, eSurface_ARGB8888, true);
    CLQSurface* const target = surface.GetSurface();
    if (!target)
        return surface;
    const std::size_t rowSize = static_cast<std::size_t>(picture.width) * sizeof(std::uint32_t);
    auto* row = static_cast<unsigned char*>(target->GetPixels());
    const std::uint32_t* from = picture.pixels.data();
    for (int y = 0; y < picture.height; ++y, row += target->GetPitch(), from += picture.width)
        std::memcpy(row, from, rowSize);
    target->Touch();
    return surface;
}

Picture FromSurface(CLQSurfHandle surface) {
    const CLQSurface* const source = surface.GetSurface();
    if (!source || (source->GetSurfType() != eSurface_ARGB8888 && source->GetSurfType() != eSurface_XRGB8888))
        return {};
    Picture picture;
    picture.width = surface.GetWidth();
    picture.height = surface.GetHeight();
    picture.pixels.reserve(static_cast<std::size_t>(picture.width) *
                           static_cast<std::size_t>(picture.height));
    const auto* row = static_cast<const unsigned char*>(source->GetPixels());
    for (int y = 0; y < picture.height; ++y, row += source->GetPitch()) {
        const auto* pixels = reinterpret_cast<const std::uint32_t*>(row);
        picture.pixels.insert(picture.pixels.end(), pixels, pixels + picture.width);
    }
    return picture;
}

}  // namespace korvane::png
