#include "platform/sdl/SdlEvents.h"

#include <SDL_mouse.h>
#include <SDL_timer.h>
#include <algorithm>

#include "platform/sdl/KeyCodes.h"

namespace korvane {

SdlEvents::SdlEvents(const DisplayHost& host, HWND owner, SDL_Window* window, SdlPicture& picture)
    : host_(host), owner_(owner), window_(window), picture_(picture), windowId_(SDL_GetWindowID(window)) {}

void SdlEvents::Handle(const SDL_Event& event) {
    switch (event.type) {
        case SDL_MOUSEBUTTONDOWN:
        case SDL_MOUSEBUTTONUP:
            return OnMouseButton(event.button);
        case SDL_MOUSEMOTION:
            return OnMouseMotion(event.motion);
        case SDL_FINGERDOWN:
        case SDL_FINGERMOTION:
        case SDL_FINGERUP:
            return OnFinger(event.tfinger);
        case SDL_KEYDOWN:
        case SDL_KEYUP:
            return OnKey(event.key);
        case SDL_WINDOWEVENT:
            return OnWindow(event.window);
        case SDL_QUIT:
            // Follows the closing of the last window, and a request to end from outside.
            return Post(WM_CLOSE, 0, 0, event.common.timestamp);
        case SDL_RENDER_TARGETS_RESET:
        case SDL_RENDER_DEVICE_RESET:
            picture_.Renew();
            host_.invalidate(owner_);
            return;
        default:
            return;
    }
}

void SdlEvents::OnMouseButton(const SDL_MouseButtonEvent& event) {
    // What a finger also reports as a mouse must not count twice.
    if (event.windowID != windowId_ || event.which == SDL_TOUCH_MOUSEID || event.button != SDL_BUTTON_LEFT)
        return;
    const ScreenPoint point = MousePoint(event.x, event.y);
    if (event.type == SDL_MOUSEBUTTONDOWN)
        Press(Toucher::Mouse, point, event.timestamp);
    else if (toucher_ == Toucher::Mouse)
        Release(point, event.timestamp);
}

void SdlEvents::OnMouseMotion(const SDL_MouseMotionEvent& event) {
    if (event.windowID == windowId_ && event.which != SDL_TOUCH_MOUSEID && toucher_ == Toucher::Mouse)
        Move(MousePoint(event.x, event.y), event.timestamp);
}

void SdlEvents::OnFinger(const SDL_TouchFingerEvent& event) {
    if (event.touchId == SDL_MOUSE_TOUCHID)
        return;
    const ScreenPoint point = picture_.PointAt(static_cast<double>(event.x), static_cast<double>(event.y));
    if (event.type == SDL_FINGERDOWN) {
        if (toucher_ == Toucher::None) {
            touchDevice_ = event.touchId;
            finger_ = event.fingerId;
        }
        Press(Toucher::Finger, point, event.timestamp);
        return;
    }
    if (toucher_ != Toucher::Finger || event.touchId != touchDevice_ || event.fingerId != finger_)
        return;
    if (event.type == SDL_FINGERMOTION)
        Move(point, event.timestamp);
    else
        Release(point, event.timestamp);
}

void SdlEvents::OnKey(const SDL_KeyboardEvent& event) {
    const int key = VirtualKeyOf(event.keysym.sym);
    if (event.windowID != windowId_ || key == 0)
        return;
    constexpr LPARAM kOnce = 1;
    constexpr LPARAM kWasDown = LPARAM{1} << 30;
    constexpr LPARAM kReleased = LPARAM{1} << 31;
    const bool down = event.type == SDL_KEYDOWN;
    const LPARAM state =
        down ? (event.repeat != 0 ? kOnce | kWasDown : kOnce) : (kOnce | kWasDown | kReleased);
    Post(down ? WM_KEYDOWN : WM_KEYUP, static_cast<WPARAM>(key), state, event.timestamp);
}

void SdlEvents::OnWindow(const SDL_WindowEvent& event) {
    if (event.windowID != windowId_)
        return;
    // The texture still holds the whole screen, so nothing need be painted anew.
    if (event.event == SDL_WINDOWEVENT_EXPOSED || event.event == SDL_WINDOWEVENT_SIZE_CHANGED)
        picture_.Show();
}

ScreenPoint SdlEvents::MousePoint(int x, int y) const {
    int width = 0;
    int height = 0;
    SDL_GetWindowSize(window_, &width, &height);
    return picture_.PointAt((x + 0.5) / std::max(width, 1), (y + 0.5) / std::max(height, 1));
}

void SdlEvents::Press(Toucher toucher, const ScreenPoint& point, Uint32 time) {
    if (toucher_ != Toucher::None || !point.inside)
        return;
    toucher_ = toucher;
    SDL_CaptureMouse(toucher == Toucher::Mouse ? SDL_TRUE : SDL_FALSE);
    Post(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(point.x, point.y), time);
}

void SdlEvents::Move(const ScreenPoint& point, Uint32 time) {
    Post(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(point.x, point.y), time);
}

void SdlEvents::Release(const ScreenPoint& point, Uint32 time) {
    toucher_ = Toucher::None;
    SDL_CaptureMouse(SDL_FALSE);
    Post(WM_LBUTTONUP, 0, MAKELPARAM(point.x, point.y), time);
}

void SdlEvents::Post(UINT message, WPARAM wParam, LPARAM lParam, Uint32 time) const {
    host_.postInput(owner_, message, wParam, lParam, SDL_GetTicks() - time);
}

}  // namespace korvane
