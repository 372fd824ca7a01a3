#pragma once

#include <string>

#include "KorvaneEx.h"

#include "demo/headunit/gauges/Readout.h"

namespace korvane::demo {

/// A round gauge with three needles and the same readings as numbers, driven by a simulated drive. The drive
/// goes on while the screen is shown, and rests when its button says so.
class GaugesScreen : public CLQWindow {
  public:
    std::wstring GetDialogName() override { return L"Gauges"; }
    bool OnInit() override;
    void SetShow(bool show) override;

  private:
    void CreateDial();
    void CreateReadouts();
    void CreateDriveButton();

    void Drive(bool drive);
    void ShowInstruments();
    void TurnNeedle(int needle, int mark);

    void OnTick(void*, int);
    void OnDriveButton(CLQButton* button);

    CLQDialScaleEx dial_;
    Readout speed_;
    Readout engineSpeed_;
    Readout fuel_;
    CLQButton driveButton_;
    CLQTimer timer_;
    bool isDriving_ = true;
    unsigned drivenMs_ = 0;
};

}  // namespace korvane::demo
