#include "engine/Korvane.h"
#include "platform/Display.h"
#include "platform/Simulation.h"

/// Fills a surface of its own; the exit status says whether the pixel is there.
int main() {
    CLQSurfHandle surface = CLQSurfManager::GetInstance()->CreateSurface(2, 2, eSurface_ARGB8888, true);
    _LQColor red{255, 0, 0, 255};
    surface.FillRect(0, 0, 2, 2, red, false);
    const auto* pixels = static_cast<const unsigned int*>(surface.GetSurface()->GetPixels());
    return surface.GetWidth() == 2 && pixels[0] == 0xFFFF0000u ? 0 : 1;
}
