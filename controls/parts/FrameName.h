#pragma once

#include <cstddef>

namespace korvane {

/// Greatest length of a frame's file name, with its terminating zero.
constexpr std::size_t kFrameNameLength = 260;

/// Writes the file name of one image of a sequence: the pattern with its conversions replaced by `first` and
/// then by `second`. Conversions are %d, %i, %u, %x, %X and %o with flags, width and precision as in printf;
/// %1$d and %2$d choose the integer; %% is a percent sign. Length modifiers l and h have no effect.
///
/// False, with an empty name, for a null pattern, for one with any other conversion or more than the two
/// integers, and for a name that is too long.
bool FormatFrameName(const wchar_t* pattern, int first, int second, wchar_t (&name)[kFrameNameLength]);

}  // namespace korvane
