#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "demo/headunit/files/Folder.h"
#include "demo/headunit/media/Track.h"

namespace korvane::demo {

/// Whether it is a file that holds music, by the ending of its name.
bool IsMusic(const FolderEntry& entry);

/// The music among a folder's entries. Its files are not decoded: each counts as 128,000 bits a second, and
/// as a minute at least.
Tracks MusicIn(const std::vector<FolderEntry>& entries);

}  // namespace korvane::demo
