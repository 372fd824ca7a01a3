#pragma once

#include <string>
#include <vector>

namespace korvane::demo {

/// A track of a medium: a piece of music, or a film.
struct Track {
    std::wstring title;
    std::wstring artist;  ///< empty where nobody is named
    int seconds;          ///< its length
};
using Tracks = std::vector<Track>;

/// What the simulated medium of a source holds.
Tracks TracksOf(int source);

}  // namespace korvane::demo
