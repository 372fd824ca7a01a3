#include "demo/headunit/radio/PresetButton.h"

#include "demo/headunit/ButtonLooks.h"

namespace korvane::demo {

void PresetButton::Place(int x, int y, int number) {
    Create(x, y, kWidth, kHeight);
    SetButtonLooks(*this, 0, L"PresetButton");

    // The button owns its elements.
    _LQColor black = {0, 0, 0, 255};
    auto* const flag = new CLQTextElement;
    flag->SetRect(14, 14, 28, 22);
    flag->SetFontSize(18, 18);
    flag->SetTextColor(black);
    flag->SetText(std::to_wstring(number).c_str());
    AddGUIElement(flag);
    frequency_ = new CLQTextElement;
    frequency_->SetRect(0, 36, kWidth, 56);
    frequency_->SetFontSize(38, 38);
    AddGUIElement(frequency_);

    EnableFocus(true);
    AddCallBack(kEventReleased, this, &PresetButton::OnReleased);
    holdTimer_.SetTimer(kHoldMs);
    holdTimer_.SetCallBack(this, &PresetButton::OnHeld);
}

void PresetButton::ShowStation(const std::wstring& frequency, bool isTuned) {
    if (frequency_)
        frequency_->SetText(frequency.c_str());
    if (isTuned == isTuned_)
        return;
    isTuned_ = isTuned;
    SetImagePath(0, eImage_Normal, isTuned ? L"PresetButton_f.lqi" : L"PresetButton_n.lqi");
}

bool PresetButton::DoMessage(_LQMessage* msg) {
    const bool result = CLQButton::DoMessage(msg);
    if (!msg || !result)
        return result;
    if (msg->code == kMsgPress)
        holdTimer_.StartTimer();
    else if (msg->code == kMsgRelease || !CheckPoint(msg->x, msg->y))
        holdTimer_.StopTimer();
    return true;
}

void PresetButton::OnReleased() {
    if (onTouched_)
        onTouched_();
}

void PresetButton::OnHeld(void*, int) {
    holdTimer_.StopTimer();
    // The screen may have gone from under the finger.
    if (!IsPressed())
        return;
    DropPress();
    Invalidate();
    if (onHeld_)
        onHeld_();
}

}  // namespace korvane::demo
