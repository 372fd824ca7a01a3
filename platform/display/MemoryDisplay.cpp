#include "platform/display/MemoryDisplay.h"

#include <algorithm>

#include "platform/display/SystemDisplay.h"

namespace korvane {

bool MemoryDisplay::Open(int width, int height, const wchar_t*, HWND owner) {
    constexpr int kLargest = 16384;
    if (width < 1 || height < 1 || width > kLargest || height > kLargest)
        return FailDisplay("the size of the screen must be 1 to 16384 pixels each way");
    constexpr std::uint32_t kBlack = 0xFF000000;
    shown_.assign(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), kBlack);
    width_ = width;
    height_ = height;
    HideOwner(owner, width, height);
    return true;
}

void MemoryDisplay::Present(const std::uint32_t* pixels, int stridePixels, int left, int top, int right,
                            int bottom) {
    left = std::max(left, 0);
    top = std::max(top, 0);
    right = std::min(right, width_);
    bottom = std::min(bottom, height_);
    if (!pixels || left >= right)
        return;
    for (int y = top; y < bottom; ++y) {
        const std::uint32_t* row = pixels + static_cast<std::ptrdiff_t>(y) * stridePixels;
        std::copy(row + left, row + right, shown_.data() + static_cast<std::ptrdiff_t>(y) * width_ + left);
    }
}

}  // namespace korvane
