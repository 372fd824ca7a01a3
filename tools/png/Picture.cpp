#include <algorithm>

#include "tools/png/Png.h"

namespace korvane::png {

bool Picture::IsOpaque() const {
    return std::all_of(pixels.begin(), pixels.end(),
                       [](std::uint32_t pixel) { return pixel >= 0xFF000000U; });
}

}  // namespace korvane::png
