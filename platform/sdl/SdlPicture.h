#pragma once

#include <SDL_render.h>
#include <SDL_video.h>
#include <cstdint>
#include <memory>

namespace korvane {

struct WindowDeleter {
    void operator()(SDL_Window* window) const { SDL_DestroyWindow(window); }
};
struct RendererDeleter {
    void operator()(SDL_Renderer* renderer) const { SDL_DestroyRenderer(renderer); }
};
struct TextureDeleter {
    void operator()(SDL_Texture* texture) const { SDL_DestroyTexture(texture); }
};

/// A pixel of the screen, and whether the place that it stands for lay on the screen at all.
struct ScreenPoint {
    int x;
    int y;
    bool inside;
};

/// The screen as a texture, shown as large as the window allows with its proportions kept and black around
/// it.
class SdlPicture {
  public:
    /// False, with SDL_GetError saying why, when the window cannot be drawn in.
    bool Create(SDL_Window* window, int width, int height);

    /// Takes the pixels of the rectangle over; it must lie on the screen.
    void Update(const SDL_Rect& rect, const std::uint32_t* pixels, int stridePixels);

    /// Shows what was taken over so far.
    void Show();

    /// Makes the texture anew after the graphics device has lost it; its contents are black.
    bool Renew();

    /// The pixel under a place of the window given as fractions of its size; a place off the screen gives the
    /// pixel next to it.
    ScreenPoint PointAt(double fractionX, double fractionY) const;

  private:
    SDL_Rect Place() const;

    int width_ = 0;
    int height_ = 0;
    std::unique_ptr<SDL_Renderer, RendererDeleter> renderer_;
    std::unique_ptr<SDL_Texture, TextureDeleter> texture_;
};

}  // namespace korvane
