#include "KorvaneEx.h"
#include "platform/Display.h"

int main() {
    if (!CLQScreen::GetInstance()->Open(korvane::DefaultDisplay(), 400, 300, L"One wheel"))
        return 1;
    CLQWindow window;
    window.Create(0, 0, 400, 300);
    _LQColor night = {10, 17, 30, 255};
    window.EnableBkgColor(true, &night);

    CLQNumSlider wheel;
    wheel.Create(44, 44, 312, 212);
    wheel.SetFont(CLQFontManager::GetInstance()->GetDefaultFont());
    wheel.SetFontSize(72, 72);
    wheel.SetBoundScalFreqID({87.5f, 108.0f, 0.05f, true, L"MHz"});
    wheel.SetVaule(98.5f);
    const auto roll = [](void*, void* sender) { static_cast<CLQNumSlider*>(sender)->StartMove(); };
    const auto stop = [](void*, void* sender) { static_cast<CLQNumSlider*>(sender)->MoveStop(); };
    wheel.SetMoveUpCallBack(roll, nullptr);
    wheel.SetMoveDownCallBack(roll, nullptr);
    wheel.SetMoveStopCallBack(stop, nullptr);
    window.AddChild(&wheel);

    WndDoModel();
}
