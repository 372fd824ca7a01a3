#pragma once

#include <vector>

#include "platform/Display.h"

namespace korvane {

/// A display without a panel: it keeps what it is shown, and nothing ever happens to it.
class MemoryDisplay : public Display {
  public:
    bool Open(int width, int height, const wchar_t* title, HWND owner) override;
    void Present(const std::uint32_t* pixels, int stridePixels, int left, int top, int right,
                 int bottom) override;
    void WaitEvents(int) override {}
    void Wake() override {}
    const std::uint32_t* Shown() const override { return shown_.empty() ? nullptr : shown_.data(); }

  private:
    int width_ = 0;
    int height_ = 0;
    std::vector<std::uint32_t> shown_;
};

}  // namespace korvane
