#pragma once

#include <memory>
#include <vector>

#include "engine/core/Life.h"
#include "engine/window/Screen.h"
#include "engine/window/parts/UpdateRegion.h"
#include "platform/Display.h"

struct CLQScreen::Impl {
    std::unique_ptr<korvane::Display> display;
    HWND hwnd = nullptr;
    CLQSurfHandle backBuffer;
    /// From the bottom to the top.
    std::vector<CLQWindow*> windows;
    /// Places that a window has left.
    korvane::UpdateRegion uncovered;
    /// The window that took the last press.
    CLQWindow* pressed = nullptr;
    korvane::LifeWatch pressedLife;
    bool painting = false;
    korvane::ScreenCounters counters;
};

namespace korvane {

/// Turns a message of the screen's system window into engine messages for the windows on the screen. False
/// when it is none that they take.
bool RouteScreenMessage(UINT message, WPARAM wParam, LPARAM lParam, CLQWindow*& pressed,
                        LifeWatch& pressedLife);

}  // namespace korvane
