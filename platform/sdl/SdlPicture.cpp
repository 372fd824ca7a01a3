#include "platform/sdl/SdlPicture.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace korvane {

bool SdlPicture::Create(SDL_Window* window, int width, int height) {
    width_ = width;
    height_ = height;
    renderer_.reset(SDL_CreateRenderer(window, -1, 0));
    return renderer_ && Renew();
}

bool SdlPicture::Renew() {
    texture_.reset(SDL_CreateTexture(renderer_.get(), SDL_PIXELFORMAT_ARGB8888, SDL_TEXTUREACCESS_STREAMING,
                                     width_, height_));
    if (!texture_)
        return false;
    SDL_SetTextureBlendMode(texture_.get(), SDL_BLENDMODE_NONE);
    const std::vector<std::uint32_t> blackRow(static_cast<std::size_t>(width_), 0xFF000000);
    for (int y = 0; y < height_; ++y)
        Update({0, y, width_, 1}, blackRow.data(), width_);
    return true;
}

void SdlPicture::Update(const SDL_Rect& rect, const std::uint32_t* pixels, int stridePixels) {
    SDL_UpdateTexture(texture_.get(), &rect, pixels, stridePixels * static_cast<int>(sizeof(std::uint32_t)));
}

void SdlPicture::Show() {
    const SDL_Rect place = Place();
    SDL_SetRenderDrawColor(renderer_.get(), 0, 0, 0, SDL_ALPHA_OPAQUE);
    SDL_RenderClear(renderer_.get());
    SDL_RenderCopy(renderer_.get(), texture_.get(), nullptr, &place);
    SDL_RenderPresent(renderer_.get());
}

ScreenPoint SdlPicture::PointAt(double fractionX, double fractionY) const {
    int outputWidth = 0;
    int outputHeight = 0;
    SDL_GetRendererOutputSize(renderer_.get(), &outputWidth, &outputHeight);
    const SDL_Rect place = Place();
    const double x = std::floor((fractionX * outputWidth - place.x) * width_ / std::max(place.w, 1));
    const double y = std::floor((fractionY * outputHeight - place.y) * height_ / std::max(place.h, 1));
    const bool inside = x >= 0 && y >= 0 && x < width_ && y < height_;
    return {static_cast<int>(std::clamp(x, 0.0, width_ - 1.0)),
            static_cast<int>(std::clamp(y, 0.0, height_ - 1.0)), inside};
}

SDL_Rect SdlPicture::Place() const {
    int outputWidth = 0;
    int outputHeight = 0;
    SDL_GetRendererOutputSize(renderer_.get(), &outputWidth, &outputHeight);
    const double scale =
        std::min(static_cast<double>(outputWidth) / width_, static_cast<double>(outputHeight) / height_);
    const int width = static_cast<int>(std::lround(width_ * scale));
    const int height = static_cast<int>(std::lround(height_ * scale));
    return {(outputWidth - width) / 2, (outputHeight - height) / 2, width, height};
}

}  // namespace korvane
