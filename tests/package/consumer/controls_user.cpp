#include "KorvaneEx.h"

/// Loads the system-information service and shows a wheel off-screen; the exit status says whether the first
/// was complete and the value of the other brought within the bounds.
int main() {
    CLQShareMemLink service;
    if (!service.Load())
        return 1;
    service.Unload();
    if (!CLQScreen::GetInstance()->Open("memory", 320, 240, L"Consumer"))
        return 1;
    CLQWindow window;
    window.Create(0, 0, 320, 240);
    CLQNumSlider wheel;
    wheel.Create(0, 0, 312, 212);
    wheel.SetFont(CLQFontManager::GetInstance()->GetDefaultFont());
    wheel.SetFontSize(72, 72);
    wheel.SetBoundScalFreqID({87.5f, 108.0f, 0.05f, true, L"MHz"});
    wheel.SetVaule(200.0f);
    window.AddChild(&wheel);
    CLQScreen::GetInstance()->Paint();
    return wheel.IsBound(200.0f) == 2 && wheel.IsBound(108.0f) == 0 ? 0 : 1;
}
