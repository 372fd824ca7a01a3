#include "demo/headunit/Tour.h"

#include <cstdint>
#include <cstdio>
#include <utility>

#include "KorvaneEx.h"
#include "platform/Simulation.h"

#include "tools/png/Png.h"

namespace korvane::demo {

namespace {

/// Any tick would do; this one is far from the clock's wrap.
constexpr unsigned kStartTick = 1000;

png::Picture ScreenPicture() {
    CLQSurface* screen = CLQScreen::GetInstance()->GetScreenSurfHandle().GetSurface();
    png::Picture picture;
    picture.width = screen->GetWidth();
    picture.height = screen->GetHeight();
    const auto* row = static_cast<const unsigned char*>(screen->GetPixels());
    for (int y = 0; y < picture.height; ++y, row += screen->GetPitch()) {
        const auto* pixels = reinterpret_cast<const std::uint32_t*>(row);
        picture.pixels.insert(picture.pixels.end(), pixels, pixels + picture.width);
    }
    return picture;
}

}  // namespace

Tour Tour::IntoFolder(std::vector<TourStep> steps, const std::string& folder) {
    Tour tour;
    tour.steps_ = std::move(steps);
    tour.folder_ = folder;
    return tour;
}

Tour Tour::IntoFile(const std::string& file) {
    Tour tour;
    tour.steps_ = {TourStep::Picture("")};
    tour.file_ = file;
    return tour;
}

void Tour::Start() {
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
    if (png::WritePng(path, ScreenPicture(), reason))
        pictures_.push_back(path);
    else
        failure_ = path + ": " + reason;
}

std::vector<TourStep> RadioTour() {
    constexpr int kWheelX = 340;
    constexpr unsigned kTickMs = 50;
    constexpr unsigned kStepMs = 200;
    const auto press = TourStep::Press;
    const auto move = TourStep::Move;
    const auto release = TourStep::Release;
    const auto wait = TourStep::Wait;
    const auto picture = TourStep::Picture;
    return {
        picture("fm"),
        // A swipe up seeks up, step by step, with a picture at a quarter of a step.
        press(kWheelX, 280),
        move(kWheelX, 220),
        release(kWheelX, 160),
        wait(kTickMs),
        picture("fm-swiped-up"),
        wait(kStepMs * 5),
        picture("fm-seeking-up"),
        // A touch stops.
        press(kWheelX, 224),
        release(kWheelX, 224),
        picture("fm-stopped"),
        // The integer column rolls along where the fraction carries.
        press(387, 408),
        move(430, 408),
        picture("fm-tuning-by-hand"),
        release(430, 408),
        picture("fm-tuned-by-hand"),
        press(kWheelX, 280),
        release(kWheelX, 160),
        wait(kStepMs + kTickMs),
        picture("fm-carry"),
        press(kWheelX, 224),
        release(kWheelX, 224),
        // At the end of the band the wheel goes on at the other end.
        press(430, 408),
        move(790, 408),
        release(790, 408),
        picture("fm-upper-end"),
        press(kWheelX, 280),
        release(kWheelX, 160),
        wait(kStepMs),
        picture("fm-wrapped"),
        wait(kStepMs + 2 * kTickMs),
        press(kWheelX, 224),
        release(kWheelX, 224),
        // A swipe down seeks down, and wraps the other way.
        press(kWheelX, 160),
        release(kWheelX, 280),
        wait(3 * kTickMs),
        picture("fm-swiped-down"),
        wait(kStepMs * 4),
        picture("fm-wrapped-down"),
        press(kWheelX, 224),
        release(kWheelX, 224),
        press(112, 224),
        picture("band-pressed"),
        release(112, 224),
        picture("am"),
        press(kWheelX, 280),
        release(kWheelX, 160),
        wait(2 * kTickMs),
        picture("am-swiped-up"),
        wait(2 * kStepMs),
        picture("am-seeking-up"),
        press(kWheelX, 224),
        release(kWheelX, 224),
        picture("am-stopped"),
        press(112, 224),
        release(112, 224),
        picture("fm-again"),
    };
}

}  // namespace korvane::demo
