#pragma once

#include <string>
#include <vector>

#include "engine/core/Types.h"

namespace korvane::tools {

/// The names by which pixel types are called on the command line.
const std::vector<std::string>& PixelTypeNames();

/// The type of that name, eSurface_None for any other.
_eSurfaceType PixelTypeByName(const std::string& name);
const char* NameOfPixelType(_eSurfaceType type);

}  // namespace korvane::tools
