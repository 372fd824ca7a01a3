#include "platform/display/MemoryDisplay.h"

#include <algorithm>

#include "platform/display/ScreenSize.h"
#include "platform/display/SystemDisplay.h"

namespace korvane {

bool MemoryDisplay::Open(int width, int height, const wchar_t*, HWND owner) {
    if (!IsScreenSize(width, height))
        return FailDisplay(kNoScreenSize);
    constexpr std::uint32_t kBlack = 0xFF000000;
    shown_.assign(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), kBlack);
    width_ = width;
    height_ = height;
    HideOwner(owner, width, height);
    return true;
}

void MemoryDisplay::Present(const std::uint32_t* pixels, int stridePixels, int left, int top, int right,
                            int bottom) {
    if (!pixels || !CutToScreen(width_, height_, left, top, right, bottom))
        return;
    for (int y = top; y < bottom; ++y) {
        const std::uint32_t* row = pixels + static_cast<std::ptrdiff_t>(y) * stridePixels;
        std::copy(row + left, row + right, shown_.data() + static_cast<std::ptrdiff_t>(y) * width_ + left);
    }
}

}  // namespace korvane
