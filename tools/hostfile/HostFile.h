#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

/// Whole files of the machine on which the tools run. (Device paths go through platform/Files.h.)
namespace korvane::tools {

/// Reads a whole file of at most `limit` bytes. On failure `error` says what is wrong, without the file's
/// name.
bool ReadHostFile(const std::filesystem::path& file, std::size_t limit, std::vector<std::uint8_t>& bytes,
                  std::string& error);

/// Puts the bytes in the place of the file's contents, or makes the file: its folder must exist. Nobody sees
/// a half-written file, and on failure the old one stays.
bool ReplaceHostFile(const std::filesystem::path& file, const void* bytes, std::size_t size,
                     std::string& error);

}  // namespace korvane::tools
