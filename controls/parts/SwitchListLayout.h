#pragma once

#include <cstdint>

#include "controls/parts/Saturated.h"

/// The geometry of CLQSwitchList. Lengths are pixels.
namespace korvane::switch_list {

constexpr int kNoItem = -1;

/// Captions that are too wide shrink to this size at the least; smaller ones stay as they are.
constexpr int kSmallestShrunkFont = 10;

struct Offset {
    int x = 0;
    int y = 0;
};

/// Where a source picture lies that is centred in an area after it was scaled to fit.
inline Offset CenterFitted(int sourceWidth, int sourceHeight, int width, int height) {
    const std::int64_t scaledWidth = std::int64_t{sourceWidth} * height;
    const std::int64_t scaledHeight = std::int64_t{sourceHeight} * width;
    if (scaledWidth > scaledHeight && sourceWidth != 0)
        return {0, Saturated((height - scaledHeight / sourceWidth) / 2)};
    if (sourceHeight != 0)
        return {Saturated((width - scaledWidth / sourceHeight) / 2), 0};
    return {};
}

/// The item at a distance from the list's top, which no bound applies to. kNoItem where a cell has no height.
inline int ItemAt(std::int64_t distance, int height, int cellsPerPage, bool secondPage) {
    if (cellsPerPage == 0 || height / cellsPerPage == 0)
        return kNoItem;
    const std::int64_t cell = distance / (height / cellsPerPage);
    return Saturated(cell + (secondPage ? cellsPerPage : 0));
}

/// The last cell of each page switches pages. So does kNoItem, which precedes the first cell.
inline bool IsPageSwitch(int item, int cellsPerPage) {
    const std::int64_t next = std::int64_t{item} + 1;
    return cellsPerPage == 0 ? next == 0 : next % cellsPerPage == 0;
}

}  // namespace korvane::switch_list
