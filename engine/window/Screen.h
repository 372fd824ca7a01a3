#pragma once

#include <cstdint>
#include <memory>

#include "engine/draw/Surface.h"
#include "platform/Export.h"
#include "platform/coredll.h"

class CLQWindow;

namespace korvane {

/// What the screen has done since the counters were last reset.
struct ScreenCounters {
    std::uint64_t paints = 0;         ///< repaints that the message loop asked for
    std::uint64_t paintedPixels = 0;  ///< pixels inside the repainted rectangles
    std::uint64_t flips = 0;          ///< rectangles shown
    std::uint64_t flippedPixels = 0;  ///< pixels shown
};

}  // namespace korvane

/// The physical screen: its system window, its back buffer and the stack of windows on it.
class KORVANE_API CLQScreen {
  public:
    static CLQScreen* GetInstance();

    /// Opens the screen on a display back end ("memory", "sdl", ...). False, with
    /// korvane::DisplayFailure saying why, when it cannot be opened, no surface can have that size or the
    /// screen is open already. `title` is the system window's title.
    bool Open(const char* display, int width, int height, const wchar_t* title);
    void Close();

    /// The system window to which commands are posted; null while the screen is closed.
    HWND GetHWND();
    /// The back buffer; an empty handle while the screen is closed.
    CLQSurfHandle& GetScreenSurfHandle();
    /// Shows a rectangle of the back buffer, given by its edges, on the display at once.
    void FlipRect(int left, int top, int right, int bottom);

    int GetWidth();
    int GetHeight();

    /// Paints and shows what waits for repainting. The message loop does so by itself once its queue has run
    /// dry.
    void Paint();
    /// Has the whole screen repainted.
    void InvalidateAll();

    /// Puts a window on top of the others.
    void BringToTop(CLQWindow* window);
    int GetWindowCount();
    /// Windows from the bottom (0) to the top; null outside 0 to count - 1.
    CLQWindow* GetWindow(int index);

    /// Handles a message of the screen's system window: touches, keys, commands and system-information
    /// changes (1191 with the item in wParam) go to the windows. False when it is none of these.
    bool HandleMessage(UINT message, WPARAM wParam, LPARAM lParam);

    korvane::ScreenCounters GetCounters();
    void ResetCounters();

  private:
    friend class CLQWindow;

    CLQScreen();
    ~CLQScreen();
    CLQScreen(const CLQScreen&) = delete;
    CLQScreen& operator=(const CLQScreen&) = delete;

    void Remove(CLQWindow* window);
    bool Contains(const CLQWindow* window) const;
    void InvalidateRect(const _LQRect& rect);
    void RequestPaint(const _LQRect& rect);

    struct Impl;
    std::unique_ptr<Impl> m_pImpl;
};
