#pragma once

#include <memory>

#include "platform/Display.h"

namespace korvane {

/// A display that a module draws, while its owner stays out of sight. What the user does there the module
/// posts by itself: here a wait is one for the system's messages, and never for the module's events.
class ModuleDisplay : public Display {
  public:
    explicit ModuleDisplay(std::unique_ptr<Display> inner) : inner_(std::move(inner)) {}
    ~ModuleDisplay() override;

    bool Open(int width, int height, const wchar_t* title, HWND owner) override;
    void Present(const std::uint32_t* pixels, int stridePixels, int left, int top, int right,
                 int bottom) override {
        inner_->Present(pixels, stridePixels, left, top, right, bottom);
    }
    void WaitEvents(int timeoutMs) override { inner_->WaitEvents(timeoutMs); }
    void Wake() override { inner_->Wake(); }
    const std::uint32_t* Shown() const override { return inner_->Shown(); }

  private:
    std::unique_ptr<Display> inner_;
};

/// Loads the module "korvane-display-<name>.dll" that lies beside this library. Null, with DisplayFailure
/// saying why, when it cannot. The module stays loaded: what it brought with it may not be unloadable.
std::unique_ptr<Display> LoadDisplayModule(const char* name);

}  // namespace korvane
