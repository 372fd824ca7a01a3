#pragma once

#include <cstddef>
#include <functional>

#include "platform/Export.h"

namespace korvane {

/// Memory that all processes of one user and device root share. Regions outlive their processes and end with
/// the system, on Windows with the last process that has mapped them. Names have 1 to 64 characters: ASCII
/// letters, digits, '-' and '_'.

/// The bytes of a region of at least `size` bytes (1 to 16 MiB), aligned to 64, at the same address for as
/// long as the process lives, whoever asks again. All of its memory is reserved: a full memory fails here and
/// not at a later write.
///
/// Whoever comes first makes the region, zeroed, and runs `fill` over it, which may be empty; all others wait
/// for that. So it runs once in the region's life, however many processes start at once; when the process
/// dies in it, the next one starts over. It must not ask for the same region.
///
/// Null when the name or size is none, when the region exists and is smaller, belongs to another user or is
/// not what this function makes, when memory is short, and when another process holds the region up for two
/// seconds.
KORVANE_API void* MapSharedMemory(const wchar_t* name, std::size_t size,
                                  const std::function<void(void*)>& fill);

/// Removes the regions and locks of the device from the system, for a scratch device whose last process is
/// at its end: processes that have them mapped keep them and no longer share them with new ones.
KORVANE_API void RemoveSharedMemory();

}  // namespace korvane
