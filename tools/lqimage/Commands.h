#pragma once

#include <filesystem>
#include <string>

#include "engine/core/Types.h"
#include "engine/draw/LqiFormat.h"

/// What the program does to one file. On failure `error` names the file and says what is wrong with it.
namespace korvane::tools {

/// `type` eSurface_None chooses XRGB8888 for a picture whose pixels are all opaque, else ARGB8888.
struct EncodeOptions {
    _eSurfaceType type = eSurface_None;
    LqiEncoding encoding = LqiEncoding::Lz4;
};

/// PNG to .lqi.
bool EncodeFile(const std::filesystem::path& png, const std::filesystem::path& lqi,
                const EncodeOptions& options, std::string& error);

/// .lqi to PNG.
bool DecodeFile(const std::filesystem::path& from, const std::filesystem::path& to, std::string& error);

/// One line about an image file that is whole and undamaged.
bool DescribeFile(const std::filesystem::path& file, std::string& description, std::string& error);

}  // namespace korvane::tools
