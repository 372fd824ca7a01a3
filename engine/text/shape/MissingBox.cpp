#include "engine/text/shape/MissingBox.h"

#include <algorithm>
#include <cstddef>

namespace korvane {

int MissingBoxAdvance(PixelSize size) {
    return std::max(2, size.width * 6 / 10);
}

GlyphMask RasteriseMissingBox(PixelSize size) {
    GlyphMask box;
    box.Clear(std::max(1, size.width / 2), std::max(1, size.height * 7 / 10));
    box.left = (MissingBoxAdvance(size) - box.width) / 2;
    box.top = -box.height;
    const int strokeX = std::max(1, size.width / 16);
    const int strokeY = std::max(1, size.height / 16);
    for (int y = 0; y < box.height; ++y) {
        for (int x = 0; x < box.width; ++x) {
            const bool isInside =
                x >= strokeX && x < box.width - strokeX && y >= strokeY && y < box.height - strokeY;
            box.Row(y)[x] = isInside ? 0 : 255;
        }
    }
    return box;
}

}  // namespace korvane
