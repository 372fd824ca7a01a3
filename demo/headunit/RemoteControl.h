#pragma once

#include "KorvaneEx.h"

namespace korvane::demo {

/// The window by which other programs drive and watch the head unit; tools/headunitctl/HeadUnitWindow.h says
/// what it answers.
class RemoteControl {
  public:
    RemoteControl() = default;
    RemoteControl(const RemoteControl&) = delete;
    RemoteControl& operator=(const RemoteControl&) = delete;
    ~RemoteControl();

    /// True when a head unit answers on this device, in this process or another.
    static bool IsTaken();

    /// Opens the window. False when a head unit has opened its own before; where there can be no window at
    /// all the head unit works without.
    bool Open();

  private:
    HWND window_ = nullptr;
};

}  // namespace korvane::demo
