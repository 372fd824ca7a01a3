#pragma once

#include "engine/text/face/GlyphMask.h"
#include "engine/text/face/PixelSize.h"

namespace korvane {

/// The empty box that stands for a character that no font has.
int MissingBoxAdvance(PixelSize size);
GlyphMask RasteriseMissingBox(PixelSize size);

}  // namespace korvane
