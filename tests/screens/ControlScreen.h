#pragma once

#include <memory>
#include <vector>

#include "KorvaneEx.h"

namespace korvane::test {

/// A window over a screen of 800 by 480 with a single control, in the head unit's pictures, and the smallest
/// change that the control shows by itself. It needs an open screen and a device with the head unit's files.
class ControlScreen {
  public:
    ControlScreen();
    ControlScreen(const ControlScreen&) = delete;
    ControlScreen& operator=(const ControlScreen&) = delete;
    virtual ~ControlScreen() = default;

    /// Puts it on top of the others.
    virtual void BringToTop();
    /// Makes the change, and the next time takes it back.
    void Change();
    /// What the change is to repaint: the control, or the part of it that changes.
    virtual _LQRect ChangedRect() = 0;

  protected:
    virtual void Show(bool changed) = 0;

    CLQWindow window_;

  private:
    bool changed_ = false;
};

struct ControlScreenKind {
    const char* name;
    std::unique_ptr<ControlScreen> (*make)();
};

/// One for each control that shows something.
const std::vector<ControlScreenKind>& ControlScreenKinds();

}  // namespace korvane::test
