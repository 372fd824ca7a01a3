#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

/// PNG files as the engine's pixels and back.
///
/// PNG keeps colours beside their alpha, the engine multiplies them with it: reading stores round(c * a /
/// 255), writing round(c * 255 / a), 0 where a is 0. Pixels written and read again are the same, bit for bit;
/// a PNG file read and written again keeps its opaque and, as transparent black, its transparent pixels.
namespace korvane::png {

struct Picture {
    int width = 0;
    int height = 0;
    /// Premultiplied ARGB, 0xAARRGGBB; row by row without gaps.
    std::vector<std::uint32_t> pixels;

    bool IsOpaque() const;
};

/// Reads a PNG file of any colour type and depth; 16-bit channels are rounded to 8, colour profiles are not
/// applied. Pictures larger than the engine's surfaces may be are refused. On failure `picture` stays as it
/// was and `error` says what is wrong, without the file's name.
bool ReadPng(const std::filesystem::path& file, Picture& picture, std::string& error);

/// Writes the picture as a PNG file of 8 bits a channel, without an alpha channel when it is opaque. The file
/// is replaced as a whole or not at all.
bool WritePng(const std::filesystem::path& file, const Picture& picture, std::string& error);

}  // namespace korvane::png
