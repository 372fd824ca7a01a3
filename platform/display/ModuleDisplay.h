#pragma once

#include <memory>

#include "platform/Display.h"

namespace korvane {

/// A display that a module draws, joined to the message queue for as long as it is open. Its owner stays out
/// of sight.
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

/// The display of the module of that name. Null, with DisplayFailure saying why, when there is none.
std::unique_ptr<Display> CreateModuleDisplay(const char* name);

}  // namespace korvane
