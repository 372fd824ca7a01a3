#include "demo/headunit/settings/SettingSwitch.h"

#include "demo/headunit/ButtonLooks.h"

namespace korvane::demo {

namespace {

/// The elements: the plate, which a button has from the start, and what is put on it.
enum Element : int { kPlate = 0, kKnob = 1 };

}  // namespace

void SettingSwitch::Place(int x, int y, int caption) {
    Create(x, y, kWidth, kHeight);
    SetButtonLooks(*this, kPlate, L"SettingRow");
    // The button owns its elements.
    auto* const knob = new CLQImageElement;
    knob->SetRect(330, 17, 96, 48);
    AddGUIElement(knob);
    ShowKnob();
    auto* const text = new CLQTextElement;
    text->SetRect(28, 2, 292, 80);
    text->SetFontSize(24, 24);
    text->SetTextStyle(eText_Left | eText_VCenter);
    AddGUIElement(text);
    SetLangID(caption);
    EnableFocus(true);
    AddCallBack(kEventReleased, this, &SettingSwitch::OnReleased);
}

void SettingSwitch::ShowState(bool isOn) {
    if (isOn_ == isOn)
        return;
    isOn_ = isOn;
    ShowKnob();
}

void SettingSwitch::ShowKnob() {
    SetButtonLooks(*this, kKnob, isOn_ ? L"SwitchOn" : L"SwitchOff");
}

void SettingSwitch::OnReleased() {
    if (onTouched_)
        onTouched_(!isOn_);
}

}  // namespace korvane::demo
