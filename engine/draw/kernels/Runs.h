#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace korvane::kernels {

enum class RunKind : std::uint16_t { Empty, Solid, Soft };

/// Neighbouring pixels of one row: all transparent, all opaque, or to be blended one by one.
struct Run {
    std::uint16_t length;
    RunKind kind;
};

/// What an image's pixels are as a whole.
enum class Coverage {
    Empty,  ///< Every pixel is 0: nothing to draw.
    Solid,  ///< Every pixel is opaque: a copy will do.
    Soft,   ///< Too few empty or solid runs to follow them; the table has no rows.
    Mixed,  ///< The rows say which pixels to skip, to copy and to blend.
};

/// The runs of an image, row by row. Found once, when the image is loaded.
struct RunTable {
    Coverage coverage = Coverage::Soft;
    std::vector<std::uint32_t> rows;  ///< Mixed: index of each row's first run. Otherwise without elements.
    std::vector<Run> runs;            ///< The runs of a row add up to the image's width.
};

/// Finds the runs of width by height premultiplied ARGB pixels; the stride is in pixels. An image without
/// pixels (null, or a side below 1) is Empty.
RunTable BuildRuns(const std::uint32_t* pixels, std::ptrdiff_t stride, int width, int height);

}  // namespace korvane::kernels
