#include "demo/headunit/tour/Tour.h"

#include <cstdio>

#include "KorvaneEx.h"
#include "platform/Simulation.h"

#include "tools/png/SurfacePicture.h"

namespace korvane::demo {

namespace {

/// Any tick would do; this one is far from the clock's wrap.
constexpr unsigned kStartTick = 1000;

}  // namespace

Tour Tour::IntoFolder(const TourScript& script, const std::string& folder) {
    Tour tour;
    tour.steps_ = script.Steps();
    tour.folder_ = folder;
    return tour;
}

Tour Tour::IntoFile(const std::string& file) {
    Tour tour;
    tour.steps_ = TourScript().Picture("").Steps();
    tour.file_ = file;
    return tour;
}

void Tour::Start() {
    service_ = std::make_unique<tools::SystemService>();
    SYSTEMTIME morning = {};
    morning.wYear = 2026;
    morning.wMonth = 4;
    morning.wDay = 14;
    morning.wHour = 10;
    morning.wMinute = 8;
    UseManualClock(kStartTick, morning);
    SetIdleHandler([this] { return PlayNext(); });
}

bool Tour::PlayNext() {
    if (next_ == steps_.size() || !failure_.empty())
        return false;
    const TourStep& step = steps_[next_];
    switch (step.action) {
        case TourStep::Action::Press:
            Touch(WM_LBUTTONDOWN, step);
            break;
        case TourStep::Action::Move:
            Touch(WM_MOUSEMOVE, step);
            break;
        case TourStep::Action::Release:
            Touch(WM_LBUTTONUP, step);
            break;
        case TourStep::Action::Set:
            service_->SetValue(step.field, step.value);
            break;
        case TourStep::Action::Wait:
            if (!LetTimePass(step.ms))
                return true;
            break;
        case TourStep::Action::Picture:
            TakePicture(step.name);
            break;
    }
    ++next_;
    return true;
}

void Tour::Touch(unsigned message, const TourStep& step) const {
    const WPARAM buttons = message == WM_LBUTTONUP ? 0 : MK_LBUTTON;
    PostInput(CLQScreen::GetInstance()->GetHWND(), message, buttons, MAKELPARAM(step.x, step.y));
}

/// Moves the clock no further than to the next timer, which the loop then runs at its very time. True when
/// the whole wait has passed.
bool Tour::LetTimePass(unsigned ms) {
    unsigned pass = ms - waited_;
    unsigned due = 0;
    if (NextTimerDue(due) && due < pass)
        pass = due;
    AdvanceClock(pass);
    waited_ += pass;
    if (waited_ < ms)
        return false;
    waited_ = 0;
    return true;
}

void Tour::TakePicture(const std::string& name) {
    std::string path = file_;
    if (path.empty()) {
        char number[8] = "";
        std::snprintf(number, sizeof number, "%02zu-", pictures_.size() + 1);
        path = folder_ + "/" + number + name + ".png";
    }
    std::string reason;
    if (png::WritePng(path, png::FromSurface(CLQScreen::GetInstance()->GetScreenSurfHandle()), reason))
        pictures_.push_back(path);
    else
        failure_ = path + ": " + reason;
}

}  // namespace korvane::demo
