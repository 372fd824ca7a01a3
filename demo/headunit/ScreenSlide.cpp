#include "demo/headunit/ScreenSlide.h"

namespace korvane::demo {

namespace {

/// Drops each press of finger or key that waits. A release stays: without its press it does nothing, and
/// otherwise it ends what was held before.
void DropPresses() {
    const HWND screen = CLQScreen::GetInstance()->GetHWND();
    MSG press;
    for (const UINT message : {WM_LBUTTONDOWN, WM_KEYDOWN}) {
        while (PeekMessageW(&press, screen, message, message, PM_REMOVE)) {
        }
    }
}

}  // namespace

ScreenSlide::ScreenSlide(const _LQRect& place) : place_(place), shown_(NewPicture()) {
    CLQScreen* const screen = CLQScreen::GetInstance();
    screen->Paint();
    shown_.BitBlt(screen->GetScreenSurfHandle(), 0, 0, shown_.GetWidth(), shown_.GetHeight(), place_.left,
                  place_.top);
}

CLQSurfHandle ScreenSlide::NewPicture() const {
    return CLQSurfManager::GetInstance()->CreateSurface(place_.right - place_.left,
                                                        place_.bottom - place_.top, eSurface_XRGB8888, true);
}

CLQSurfHandle ScreenSlide::PictureOf(CLQWindow& window) const {
    CLQSurfHandle picture = NewPicture();
    // A window draws at its place on the screen.
    if (CLQSurface* const surface = picture.GetSurface()) {
        surface->SetOrigin(place_.left, place_.top);
        window.Draw(picture);
        surface->SetOrigin(0, 0);
    }
    return picture;
}

void ScreenSlide::Play(CLQWindow& next, Way way) {
    CLQSurfHandle coming = PictureOf(next);
    const bool comesIn = way == Way::In;
    CLQImageView moving;
    moving.Create(place_.left, place_.top, place_.right - place_.left, place_.bottom - place_.top);
    moving.SetImageSurf(comesIn ? coming : shown_);
    MoveInOutCtrl2(&next, &moving, comesIn ? &shown_ : &coming, comesIn, kFrames);
    DropPresses();
}

}  // namespace korvane::demo
