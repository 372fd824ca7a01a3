#pragma once

#include "platform/Display.h"

namespace korvane {

/// Makes the owner a window that the user sees and touches: with a frame and a title, its client area of the
/// screen's size, a pixel of the screen a pixel of it. What the user does reaches the owner's procedure as
/// the system's own messages, so there is nothing to wait for here.
class Win32Display : public Display {
  public:
    Win32Display() = default;
    ~Win32Display() override;
    Win32Display(const Win32Display&) = delete;
    Win32Display& operator=(const Win32Display&) = delete;

    bool Open(int width, int height, const wchar_t* title, HWND owner) override;
    void Present(const std::uint32_t* pixels, int stridePixels, int left, int top, int right,
                 int bottom) override;
    void WaitEvents(int timeoutMs) override;
    void Wake() override;

  private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    /// What the window does before the owner's procedure. False for a message that this must not see.
    bool Precede(UINT message, WPARAM wParam, LPARAM& lParam);
    /// Puts the end of a touch that the window is not told of behind what waits.
    void PostRelease();
    /// Fits the frame, whose thickness is the monitor's, around the screen.
    void KeepClientSize();
    /// Of a place off the screen, the pixel next to it.
    LPARAM OnScreen(LPARAM point) const;
    void ShowFramed(const wchar_t* title);
    void Blacken();
    void Close();

    HWND owner_ = nullptr;  // borrowed
    WNDPROC ownersProcedure_ = nullptr;
    HANDLE woken_ = nullptr;
    int width_ = 0;
    int height_ = 0;
    bool pressed_ = false;  // by the mouse, a finger, or a program in their place
    LPARAM lastPoint_ = 0;  // of the touch
};

}  // namespace korvane
