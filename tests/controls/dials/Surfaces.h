#pragma once

#include "engine/draw/SurfManager.h"

namespace korvane::test {

/// Transparent.
inline CLQSurfHandle NewSurface(int width, int height) {
    return CLQSurfManager::GetInstance()->CreateSurface(width, height, eSurface_ARGB8888, true);
}

inline CLQSurfHandle Filled(int width, int height, _LQColor color) {
    CLQSurfHandle surface = NewSurface(width, height);
    surface.FillRect(0, 0, width, height, color, false);
    return surface;
}

}  // namespace korvane::test
