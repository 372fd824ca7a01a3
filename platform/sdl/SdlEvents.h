#pragma once

#include <SDL_events.h>

#include "platform/DisplayModule.h"
#include "platform/sdl/SdlPicture.h"

namespace korvane {

/// Turns SDL's events into the input messages of one touch panel: whichever touches first, the mouse's left
/// button or a finger, is the touch until it lets go; what else touches meanwhile is passed over.
class SdlEvents {
  public:
    SdlEvents(const DisplayHost& host, HWND owner, SDL_Window* window, SdlPicture& picture);

    void Handle(const SDL_Event& event);

  private:
    enum class Toucher { None, Mouse, Finger };

    void OnMouseButton(const SDL_MouseButtonEvent& event);
    void OnMouseMotion(const SDL_MouseMotionEvent& event);
    void OnFinger(const SDL_TouchFingerEvent& event);
    void OnKey(const SDL_KeyboardEvent& event);
    void OnWindow(const SDL_WindowEvent& event);

    ScreenPoint MousePoint(int x, int y) const;
    void Press(Toucher toucher, const ScreenPoint& point, Uint32 time);
    void Move(const ScreenPoint& point, Uint32 time);
    void Release(const ScreenPoint& point, Uint32 time);
    void Post(UINT message, WPARAM wParam, LPARAM lParam, Uint32 time) const;

    const DisplayHost& host_;
    HWND owner_;
    SDL_Window* window_;
    SdlPicture& picture_;
    Uint32 windowId_;
    Toucher toucher_ = Toucher::None;
    SDL_TouchID touchDevice_ = 0;
    SDL_FingerID finger_ = 0;
};

}  // namespace korvane
