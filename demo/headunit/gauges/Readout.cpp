#include "demo/headunit/gauges/Readout.h"

#include <string>

#include "demo/headunit/Label.h"

namespace korvane::demo {

namespace {

constexpr int kNumberTop = 26;
constexpr int kNumberWidth = 124;
constexpr int kUnitLeft = 136;

}  // namespace

void Readout::Place(CLQWindow& window, int x, int y, int caption, int unit) {
    PlaceLabel(caption_, {x, x + kWidth, y, y + 28}, 22, eText_Left, LabelColor::Grey);
    caption_.SetLangID(caption);
    PlaceLabel(number_, {x, x + kNumberWidth, y + kNumberTop, y + kHeight}, 48, eText_Right);
    PlaceLabel(unit_, {x + kUnitLeft, x + kWidth, y + kNumberTop + 8, y + kHeight}, 24, eText_Left,
               LabelColor::Grey);
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
