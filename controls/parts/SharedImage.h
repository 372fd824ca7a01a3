#pragma once

#include <memory>

#include "engine/draw/Surface.h"

namespace korvane {

/// An image that the copies of a control share. Never null; its handle is empty for a missing file.
std::shared_ptr<CLQSurfHandle> LoadSharedImage(const wchar_t* file);

/// Blends the whole image over the target, its top-left corner at (x, y). Null draws nothing.
void BlitWhole(CLQSurfHandle& target, const std::shared_ptr<CLQSurfHandle>& image, int x, int y);

}  // namespace korvane
