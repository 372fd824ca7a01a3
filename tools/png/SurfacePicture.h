#pragma once

#include "engine/draw/Surface.h"

#include "tools/png/Png.h"

namespace korvane::png {

/// A surface of type ARGB8888 with the picture's pixels; an empty handle for a picture without pixels and
/// when there is not enough memory.
CLQSurfHandle ToSurface(const Picture& picture);

/// The pixels of a surface of a 32-bit type; a picture without pixels for any other and for an empty handle.
Picture FromSurface(CLQSurfHandle surface);

}  // namespace korvane::png
