#pragma once

#include <string>

#include "tools/headunitctl/Outcome.h"

namespace korvane::tools {

/// Stores a PNG file, scaled to 240 by 144, as the picture that the processes of the device share.
Outcome PutThumbnail(const std::string& pngFile);

/// Writes that picture to a PNG file.
Outcome GetThumbnail(const std::string& pngFile);

}  // namespace korvane::tools
