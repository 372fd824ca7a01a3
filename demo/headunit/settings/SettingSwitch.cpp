#include "demo/headunit/settings/SettingSwitch.h"

#include <string>

namespace korvane::demo {

namespace {

/// The elements: the plate, which a button has from the start, and what is put on it.
enum Element : int { kPlate = 0, kKnob = 1 };

struct StateImage {
    _eImageType state;
    const wchar_t* ending;
};
constexpr StateImage kStates[] = {{eImage_Normal, L"_n.lqi"},
                                  {eImage_Pressed, L"_p.lqi"},
                                  {eImage_Focus, L"_f.lqi"},
                                  {eImage_Disabled, L"_d.lqi"}};

}  // namespace

void SettingSwitch::Place(int x, int y, int caption) {
    Create(x, y, kWidth, kHeight);
    for (const StateImage& image : kStates)
        SetImagePath(kPlate, image.state, (std::wstring(L"SettingRow") + image.ending).c_str());
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
    const std::wstring name = isOn_ ? L"SwitchOn" : L"SwitchOff";
    for (const StateImage& image : kStates)
        SetImagePath(kKnob, image.state, (name + image.ending).c_str());
}

void SettingSwitch::OnReleased() {
    if (onTouched_)
        onTouched_(!isOn_);
}

}  // namespace korvane::demo
