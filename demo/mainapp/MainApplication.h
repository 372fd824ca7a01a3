#pragma once

#include "KorvaneEx.h"

#include "tools/systemservice/SystemService.h"

namespace korvane::demo {

/// The head unit's main application, as far as the simulator needs it: a window that the controls find by its
/// name. It sounds the key beep, switches sources and zones, changes settings, and keeps the system record.
class MainApplication {
  public:
    enum class KeyBeep { Sounding, Silent };

    explicit MainApplication(KeyBeep beep);
    MainApplication(const MainApplication&) = delete;
    MainApplication& operator=(const MainApplication&) = delete;
    ~MainApplication();

    /// Gives a record that nobody has filled yet its first values and opens the window. False when a main
    /// application is running on this device already, in this process or another, or there is no window.
    bool Start();

  private:
    static LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    void OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
    void OnTitleButton(TitleButton button);
    void OnSetting(WPARAM item, LPARAM value);
    void SoundBeep();
    void FillFreshRecord();

    tools::SystemService service_;
    KeyBeep beep_;
    HWND window_ = nullptr;
};

}  // namespace korvane::demo
