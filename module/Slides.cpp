#include "module/Slides.h"

#include <algorithm>
#include <cstdint>

#include "engine/core/Borrowed.h"
#include "engine/draw/SurfManager.h"
#include "engine/window/Screen.h"
#include "engine/window/Window.h"
#include "module/SlideFrame.h"
#include "platform/coredll.h"

using korvane::slide::Rounding;

namespace {

struct Place {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
};

Place PlaceOf(CLQBaseCtrl& ctrl) {
    Place place;
    ctrl.GetScreenXY(place.x, place.y);
    ctrl.GetSize(place.width, place.height);
    return place;
}

CLQSurfHandle NewSurface(int width, int height) {
    return CLQSurfManager::GetInstance()->CreateSurface(width, height, eSurface_ARGB8888, true);
}

CLQSurfHandle PictureOf(CLQBaseCtrl& ctrl, int width, int height) {
    CLQSurfHandle picture = NewSurface(width, height);
    ctrl.DrawBaseCtrl(picture, 0, 0);
    return picture;
}

/// What a slide needs, taken before its first frame.
struct Slide {
    korvane::Borrowed<CLQWindow> window;
    Place place;
    CLQSurfHandle picture;
    bool in = false;
    int frames = 1;
    Rounding rounding = Rounding::TowardZero;
};

/// Switches the window's repaint rectangles off and has the control draw itself.
Slide BeginSlide(CLQWindow& window, CLQBaseCtrl& ctrl, bool in, int frames, Rounding rounding) {
    Slide slide;
    slide.window = &window;
    slide.place = PlaceOf(ctrl);
    slide.in = in;
    slide.frames = std::max(frames, 1);
    slide.rounding = rounding;
    window.EnableUpdateRect(false);
    slide.picture = PictureOf(ctrl, slide.place.width, slide.place.height);
    return slide;
}

void DrawFrame(CLQSurfHandle& screen, Slide& slide, int frame) {
    const Place& at = slide.place;
    const int way = korvane::slide::WayAfter(frame, slide.frames, at.width, slide.rounding);
    if (slide.in)
        screen.BitBlt(slide.picture, at.x, at.y, way, at.height, at.width - way, 0);
    else
        screen.BitBlt(slide.picture, at.x, at.y, at.width - way, at.height, way, 0);
}

/// `drawBackground` paints what lies behind the control; it is called for each frame.
template <class DrawBackground>
void PlaySlide(Slide& slide, DrawBackground drawBackground) {
    CLQScreen* const screen = CLQScreen::GetInstance();
    CLQSurfHandle& surface = screen->GetScreenSurfHandle();
    const Place& at = slide.place;
    for (std::int64_t frame = 1; frame <= slide.frames; ++frame) {
        const DWORD start = GetTickCount();
        drawBackground(surface);
        DrawFrame(surface, slide, static_cast<int>(frame));
        if (const DWORD wait = korvane::slide::WaitAfter(GetTickCount() - start))
            Sleep(wait);
        screen->FlipRect(at.x, at.y, at.x + at.width, at.y + at.height);
    }
    if (slide.window)
        slide.window->EnableUpdateRect(true);
}

void SlideOverControl(Slide& slide, CLQSurfHandle second) {
    const Place at = slide.place;
    // The right edge is measured from y as well, so that what is right of the control may be filled too. Only
    // the control's rectangle is shown.
    const int right = std::max(at.x + at.width, at.y + at.width);
    PlaySlide(slide, [&](CLQSurfHandle& screen) {
        if (slide.window)
            slide.window->FillBkgRect(screen, at.x, at.y, right, at.y + at.height);
        screen.BitBlt(second, at.x, at.y, at.width, at.height, 0, 0);
    });
}

void SlideOverScreen(Slide& slide) {
    const Place at = slide.place;
    CLQSurfHandle saved = NewSurface(at.width, at.height);
    saved.BitBlt(CLQScreen::GetInstance()->GetScreenSurfHandle(), 0, 0, at.width, at.height, at.x, at.y);
    PlaySlide(slide, [&](CLQSurfHandle& screen) {
        // Edges where sizes are expected, which is meant: what was saved bounds the copy.
        screen.BitBlt(saved, at.x, at.y, at.x + at.width, at.y + at.height, 0, 0);
    });
}

void SlideOverWindow(Slide& slide) {
    const Place at = slide.place;
    PlaySlide(slide, [&](CLQSurfHandle& screen) {
        if (slide.window)
            slide.window->FillBkgRect(screen, at.x, at.y, at.x + at.width, at.y + at.height);
    });
}

}  // namespace

void MoveInOutCtrl(CLQWindow* window, CLQBaseCtrl* ctrl, CLQBaseCtrl* second, bool slideIn, int frames) {
    if (!window || !ctrl)
        return;
    const korvane::Borrowed<CLQBaseCtrl> behind = second;
    Slide slide = BeginSlide(*window, *ctrl, slideIn, frames, Rounding::Nearest);
    if (second)
        SlideOverControl(
            slide, behind ? PictureOf(*behind, slide.place.width, slide.place.height) : CLQSurfHandle());
    else if (slideIn)
        SlideOverScreen(slide);
    else
        SlideOverWindow(slide);
}

void MoveInOutCtrl2(CLQWindow* window, CLQBaseCtrl* ctrl, CLQSurfHandle* background, bool slideIn,
                    int frames) {
    if (!window || !ctrl)
        return;
    Slide slide = BeginSlide(*window, *ctrl, slideIn, frames, Rounding::TowardZero);
    CLQSurfHandle behind = background ? *background : CLQSurfHandle();
    const Place at = slide.place;
    PlaySlide(slide,
              [&](CLQSurfHandle& screen) { screen.BitBlt(behind, at.x, at.y, at.width, at.height, 0, 0); });
}

void MoveInOutCtrl3(CLQWindow* window, CLQBaseCtrl* ctrl, bool slideIn, int frames) {
    if (!window || !ctrl)
        return;
    const korvane::Borrowed<CLQWindow> owner = window;
    const korvane::Borrowed<CLQBaseCtrl> sliding = ctrl;
    const Place at = PlaceOf(*ctrl);
    // In screen coordinates, from the screen's corner to the control's.
    CLQSurfHandle behind = NewSurface(at.x + at.width, at.y + at.height);
    // Asked, but shown afterwards whatever the answer is.
    ctrl->IsShow();
    ctrl->SetShow(false);
    window->ClearUpdateRectVec();
    window->Draw(behind);
    if (owner)
        window->ClearUpdateRectVec();
    if (sliding)
        ctrl->SetShow(true);
    if (!owner || !sliding)
        return;

    Slide slide = BeginSlide(*window, *ctrl, slideIn, frames, Rounding::TowardZero);
    PlaySlide(slide, [&](CLQSurfHandle& screen) {
        screen.BitBlt(behind, at.x, at.y, at.width, at.height, at.x, at.y);
    });
}
