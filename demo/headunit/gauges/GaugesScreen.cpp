#include "demo/headunit/gauges/GaugesScreen.h"

#include <iterator>

#include "demo/headunit/ButtonLooks.h"
#include "demo/headunit/Captions.h"
#include "demo/headunit/gauges/Drive.h"

namespace korvane::demo {

namespace {

constexpr int kTickMs = 50;
constexpr int kReadoutLeft = 500;

/// A needle of the dial: the arc of its scale, from the first of its marks to the last, and the point of its
/// picture that it turns about.
struct Needle {
    int startAngle;
    int endAngle;
    int marks;
    tagPOINT pivot;
};
enum NeedleIndex : int { kSpeed = 0, kEngineSpeed = 1, kFuel = 2 };
constexpr int kTurnsPerMark = 100;
/// A mark for each km/h up to 240, each hundred revolutions up to 6000, each percent of the tank.
constexpr Needle kNeedles[] = {
    {150, 30, 241, {22, 8}},
    {200, 20, 61, {22, 6}},
    {100, 170, 101, {26, 26}},
};

}  // namespace

bool GaugesScreen::OnInit() {
    SetBkgSurf(L"SourceBkg.lqi");
    CreateDial();
    CreateReadouts();
    CreateDriveButton();
    timer_.SetTimer(kTickMs);
    timer_.SetCallBack(this, &GaugesScreen::OnTick);
    ShowInstruments();
    return true;
}

void GaugesScreen::CreateDial() {
    dial_.Create(50, 70, 400, 400);
    dial_.SetBkgSurf(L"DialFace.lqi");
    // The pivots come after the pictures, which reset them.
    dial_.SetPointerSurf(L"DialNeedle1.lqi", L"DialNeedle2.lqi", L"DialNeedle3.lqi");
    for (int i = 0; i < static_cast<int>(std::size(kNeedles)); ++i) {
        const Needle& needle = kNeedles[i];
        tagPOINT pivot = needle.pivot;
        dial_.SetPointerCenter(i, &pivot);
        dial_.SetStartAngle(i, needle.startAngle);
        dial_.SetEndAngle(i, needle.endAngle);
        dial_.SetDialScaleNum(i, needle.marks);
        // A new number of marks leaves the needle beside its arc; the mark puts it there.
        dial_.SetCurrentDialScale(i, 0);
    }
    AddChild(&dial_);
}

void GaugesScreen::CreateReadouts() {
    speed_.Place(*this, kReadoutLeft, 80, kCaptionSpeed, kCaptionUnitSpeed);
    engineSpeed_.Place(*this, kReadoutLeft, 180, kCaptionEngineSpeed, kCaptionUnitEngineSpeed);
    fuel_.Place(*this, kReadoutLeft, 280, kCaptionFuel, 0);
}

void GaugesScreen::CreateDriveButton() {
    driveButton_.Create(kReadoutLeft, 388, 260, 72);
    SetButtonLooks(driveButton_, 0, L"DriveButton");
    // The button owns its elements.
    auto* caption = new CLQTextElement;
    caption->SetFontSize(26, 26);
    driveButton_.AddGUIElement(caption);
    driveButton_.SetLangID(kCaptionStopDrive);
    driveButton_.EnableFocus(true);
    driveButton_.AddCallBack(kEventReleased, this, &GaugesScreen::OnDriveButton);
    AddChild(&driveButton_);
}

void GaugesScreen::SetShow(bool show) {
    CLQWindow::SetShow(show);
    Drive(show && isDriving_);
}

void GaugesScreen::Drive(bool drive) {
    if (drive)
        timer_.StartTimer();
    else
        timer_.StopTimer();
}

void GaugesScreen::ShowInstruments() {
    const Instruments now = InstrumentsAt(drivenMs_);
    TurnNeedle(kSpeed, now.speed);
    TurnNeedle(kEngineSpeed, now.engineSpeed / kTurnsPerMark);
    TurnNeedle(kFuel, now.fuel);
    speed_.Show(now.speed);
    engineSpeed_.Show(now.engineSpeed);
    fuel_.Show(now.fuel);
}

/// The dial repaints at each call, so it is left alone where nothing changes.
void GaugesScreen::TurnNeedle(int needle, int mark) {
    if (dial_.GetCurrentDialScale(needle) != mark)
        dial_.SetCurrentDialScale(needle, mark);
}

void GaugesScreen::OnTick(void*, int) {
    drivenMs_ += kTickMs;
    ShowInstruments();
}

void GaugesScreen::OnDriveButton(CLQButton*) {
    isDriving_ = !isDriving_;
    driveButton_.SetLangID(isDriving_ ? kCaptionStopDrive : kCaptionStartDrive);
    Drive(isDriving_);
}

}  // namespace korvane::demo
