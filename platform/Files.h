#pragma once

#include <cstddef>
#include <vector>

#include "platform/Export.h"

namespace korvane {

/// Puts `size` bytes in the place of the file's contents, or makes the file. Whoever opens it, at any moment
/// and also after a power failure, finds either all of the old or all of the new contents. The folder must
/// exist. False leaves the old file untouched.
KORVANE_API bool ReplaceFileAtomically(const wchar_t* devicePath, const void* bytes, std::size_t size);

/// Reads a whole plain file of at most `limit` bytes. False, with `bytes` empty, when it is missing, longer,
/// or cannot be read.
KORVANE_API bool ReadWholeFile(const wchar_t* devicePath, std::size_t limit,
                               std::vector<unsigned char>& bytes);

}  // namespace korvane
