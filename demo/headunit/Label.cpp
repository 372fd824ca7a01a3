#include "demo/headunit/Label.h"

namespace korvane::demo {

void PlaceLabel(CLQStatic& label, const _LQRect& place, int size, int align, LabelColor color) {
    _LQColor white = {255, 255, 255, 255};
    _LQColor grey = {159, 180, 208, 255};
    label.Create(place.left, place.top, place.right - place.left, place.bottom - place.top);
    label.SetFontSize(size, size);
    label.SetTextStyle(align | eText_VCenter);
    label.SetTextColor(color == LabelColor::Grey ? grey : white);
    label.EnableRecvMsg(false);
}

}  // namespace korvane::demo
