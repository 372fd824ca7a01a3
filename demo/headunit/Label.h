#pragma once

#include "KorvaneEx.h"

namespace korvane::demo {

/// White for what matters, grey for what goes with it.
enum class LabelColor { White, Grey };

/// Places a line of text in a rectangle of its window, in the middle of its height; `align` is eText_Left,
/// eText_HCenter or eText_Right, `size` that of the font in pixels. Touches go through to what lies below.
void PlaceLabel(CLQStatic& label, const _LQRect& place, int size, int align,
                LabelColor color = LabelColor::White);

}  // namespace korvane::demo
