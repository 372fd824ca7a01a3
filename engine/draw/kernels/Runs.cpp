#include "engine/draw/kernels/Runs.h"

#include <algorithm>

namespace korvane::kernels {
namespace {

/// An empty or solid stretch shorter than this costs more to treat apart than to blend.
constexpr int kShortestApart = 16;
/// Soft runs grow into their right neighbour up to a multiple of this, so that they end on whole vectors.
constexpr int kSoftGrain = 8;
/// In a narrow image the way along the runs costs more than it spares.
constexpr int kNarrow = 64;
/// Runs pay when at least one pixel in this many is not blended.
constexpr std::size_t kWorthOneIn = 16;

RunKind KindOf(std::uint32_t pixel) {
    if (pixel == 0) {
        return RunKind::Empty;
    }
    return pixel >= 0xFF000000U ? RunKind::Solid : RunKind::Soft;
}

void Append(std::vector<Run>& runs, std::size_t rowStart, RunKind kind, int length) {
    constexpr int kLongest = 0xFFFF;
    if (runs.size() > rowStart && runs.back().kind == kind) {
        const int grown = std::min(length, kLongest - runs.back().length);
        runs.back().length = static_cast<std::uint16_t>(runs.back().length + grown);
        length -= grown;
    }
    while (length > 0) {
        const int part = std::min(length, kLongest);
        runs.push_back({static_cast<std::uint16_t>(part), kind});
        length -= part;
    }
}

/// Appends one row's runs; returns how many of its pixels are blended.
std::size_t AppendRow(std::vector<Run>& runs, const std::uint32_t* row, int width) {
    const std::size_t rowStart = runs.size();
    std::size_t blended = 0;
    int softLength = 0;
    int x = 0;
    while (x < width) {
        const RunKind kind = KindOf(row[x]);
        int end = x + 1;
        while (end < width && KindOf(row[end]) == kind) {
            ++end;
        }
        int length = end - x;
        x = end;
        if (kind != RunKind::Soft) {
            const int wanted = (kSoftGrain - softLength % kSoftGrain) % kSoftGrain;
            if (length - wanted >= kShortestApart) {
                if (softLength > 0) {
                    Append(runs, rowStart, RunKind::Soft, softLength + wanted);
                    blended += static_cast<std::size_t>(softLength + wanted);
                    length -= wanted;
                    softLength = 0;
                }
                Append(runs, rowStart, kind, length);
                continue;
            }
        }
        softLength += length;
    }
    if (softLength > 0) {
        Append(runs, rowStart, RunKind::Soft, softLength);
        blended += static_cast<std::size_t>(softLength);
    }
    return blended;
}

}  // namespace

RunTable BuildRuns(const std::uint32_t* pixels, std::ptrdiff_t stride, int width, int height) {
    RunTable table;
    if (pixels == nullptr || width < 1 || height < 1) {
        table.coverage = Coverage::Empty;
        return table;
    }
    bool isEmpty = true;
    bool isSolid = true;
    for (int y = 0; y < height && (isEmpty || isSolid); ++y) {
        std::uint32_t anyOf = 0;
        std::uint32_t allOf = 0xFFFFFFFFU;
        for (int x = 0; x < width; ++x) {
            anyOf |= pixels[y * stride + x];
            allOf &= pixels[y * stride + x];
        }
        isEmpty = isEmpty && anyOf == 0;
        isSolid = isSolid && allOf >= 0xFF000000U;
    }
    if (isEmpty || isSolid) {
        table.coverage = isEmpty ? Coverage::Empty : Coverage::Solid;
        return table;
    }
    if (width < kNarrow) {
        return RunTable{};
    }
    std::size_t blended = 0;
    table.rows.reserve(static_cast<std::size_t>(height));
    for (int y = 0; y < height; ++y) {
        table.rows.push_back(static_cast<std::uint32_t>(table.runs.size()));
        blended += AppendRow(table.runs, pixels + y * stride, width);
    }
    const std::size_t area = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    if (area - blended < area / kWorthOneIn) {
        return RunTable{};
    }
    table.coverage = Coverage::Mixed;
    table.runs.shrink_to_fit();
    return table;
}

}  // namespace korvane::kernels
