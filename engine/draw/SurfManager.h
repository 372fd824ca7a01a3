#pragma once

#include <memory>
#include <string>

#include "engine/draw/Surface.h"

/// Loads and makes surfaces.
class KORVANE_API CLQSurfManager {
  public:
    static CLQSurfManager* GetInstance();

    /// Loads an image file (".lqi"). A name without a folder is looked for in the image folder. With `share`,
    /// all handles that name the same file share one copy of its pixels while any of them lives; without it
    /// the pixels are the caller's own. Returns an empty handle for a null name and for a missing or damaged
    /// file.
    CLQSurfHandle CreateSurface(const wchar_t* file, bool share);

    /// A new surface, transparent or, in formats without alpha, black. Sizes below 1, sizes beyond
    /// korvane::kMaxSurfaceExtent or korvane::kMaxSurfacePixels, and unknown types give an empty handle.
    /// `clear` false lets the engine leave the pixels unset.
    CLQSurfHandle CreateSurface(int width, int height, _eSurfaceType type, bool clear);

  private:
    CLQSurfManager();
    ~CLQSurfManager();
    CLQSurfManager(const CLQSurfManager&) = delete;
    CLQSurfManager& operator=(const CLQSurfManager&) = delete;

    struct Impl;
    std::unique_ptr<Impl> m_pImpl;
};

namespace korvane {

/// Greatest width and height of a surface, in pixels.
constexpr int kMaxSurfaceExtent = 8192;
/// Greatest number of pixels of a surface: no input makes the engine allocate more for one image.
constexpr int kMaxSurfacePixels = 16 * 1024 * 1024;

}  // namespace korvane
