#pragma once

#include <cstdint>
#include <memory>

#include "platform/Export.h"
#include "platform/coredll.h"

namespace korvane {

/// Where the screen's pixels become visible and its touches come from. One display is open per process. Used
/// on the thread of the owner window, apart from Wake.
class Display {
  public:
    virtual ~Display() = default;

    /// Shows `width` by `height` pixels (1 to 16384 each). Touches and keys go to `owner`, a window of the
    /// calling thread, as input messages in screen pixels. False, with DisplayFailure saying why, when it
    /// cannot.
    virtual bool Open(int width, int height, const wchar_t* title, HWND owner) = 0;

    /// Makes the rectangle visible at once. `pixels` is the top-left corner of the whole screen, rows
    /// `stridePixels` apart, each pixel 0xAARRGGBB and opaque. The rectangle is cut to the screen.
    virtual void Present(const std::uint32_t* pixels, int stridePixels, int left, int top, int right,
                         int bottom) = 0;

    /// Waits until the display has had events or `timeoutMs` has passed (-1: without limit) and posts what
    /// they mean to the owner. Dispatches nothing.
    virtual void WaitEvents(int timeoutMs) = 0;

    /// Ends a WaitEvents, or the next one if none is running. Any thread may call it.
    virtual void Wake() = 0;

    /// All that has been presented, width by height pixels without gaps; null for a display that keeps no
    /// copy.
    virtual const std::uint32_t* Shown() const { return nullptr; }
};

/// A display by name. "memory" keeps what is presented and has no events. On Windows "win32" makes the owner
/// a window that the user sees and touches; once open, it has left a console that was the program's own, as a
/// double click opens it. Elsewhere any other name is a module beside this library ("sdl": a window, or the
/// whole screen of a device), loaded only here. Null, with DisplayFailure saying why, when there is none of
/// that name.
KORVANE_API std::unique_ptr<Display> CreateDisplay(const char* name);

/// The name of the display that a user can see and touch: "win32" on Windows, "sdl" elsewhere.
KORVANE_API const char* DefaultDisplay();

/// Why the last CreateDisplay or Open failed, one line of UTF-8. Never null; valid until the next failure.
KORVANE_API const char* DisplayFailure();

/// Keeps a reason for DisplayFailure; returns false.
bool FailDisplay(const char* text);

}  // namespace korvane
