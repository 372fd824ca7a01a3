#pragma once

#include <cstddef>

namespace korvane {

/// The picture buffer that all processes share, null when it has fewer than `size` bytes and when there is no
/// memory for it.
unsigned char* SharedThumbnailBuffer(std::size_t size);

}  // namespace korvane
