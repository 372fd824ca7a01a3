#include "demo/headunit/gauges/Readout.h"

#include <string>

namespace korvane::demo {

namespace {

constexpr int kNumberTop = 26;
constexpr int kNumberWidth = 124;
constexpr int kUnitLeft = 136;

void SetLook(CLQStatic& label, int size, int style, _LQColor color) {
    label.SetFontSize(size, size);
    label.SetTextStyle(style);
    label.SetTextColor(color);
}

}  // namespace

void Readout::Place(CLQWindow& window, int x, int y, int caption, int unit) {
    const _LQColor grey = {159, 180, 208, 255};
    const _LQColor white = {255, 255, 255, 255};
    caption_.Create(x, y, kWidth, 28);
    SetLook(caption_, 22, eText_Left | eText_VCenter, grey);
    caption_.SetLangID(caption);
    number_.Create(x, y + kNumberTop, kNumberWidth, kHeight - kNumberTop);
    SetLook(number_, 48, eText_Right | eText_VCenter, white);
    unit_.Create(x + kUnitLeft, y + kNumberTop + 8, kWidth - kUnitLeft, kHeight - kNumberTop - 8);
    SetLook(unit_, 24, eText_Left | eText_VCenter, grey);
    if (unit != 0)
        unit_.SetLangID(unit);
    else
        unit_.SetText(L"%");
    for (CLQStatic* const label : {&caption_, &number_, &unit_})
        window.AddChild(label);
}

void Readout::Show(int value) {
    if (value == value_)
        return;
    value_ = value;
    number_.SetText(std::to_wstring(value).c_str());
}

}  // namespace korvane::demo
