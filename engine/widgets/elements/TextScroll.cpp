#include "engine/widgets/elements/TextScroll.h"

namespace korvane {

void TextScroll::Restart() {
    scrolled = 0;
    passes = 0;
}

bool TextScroll::IsWanted(int textWidth, int labelWidth) const {
    return enabled && type != eScroll_None && textWidth > 0 && labelWidth > 0 &&
           (!onlyTooLong || textWidth > labelWidth) && (count <= 0 || passes < count);
}

void TextScroll::Advance(int textWidth, int labelWidth) {
    const long long way = static_cast<long long>(textWidth) + labelWidth;
    const long long moved = static_cast<long long>(scrolled) + step;
    if (moved < way) {
        scrolled = static_cast<int>(moved);
        return;
    }
    if (count > 0)
        ++passes;
    scrolled = count > 0 && passes >= count ? 0 : static_cast<int>(moved % way);
}

int TextScroll::Shift(int start, int textWidth, int labelWidth) const {
    const int way = textWidth + labelWidth;
    if (type == eScroll_Right)
        return start + scrolled >= labelWidth ? scrolled - way : scrolled;
    return start - scrolled + textWidth <= 0 ? way - scrolled : -scrolled;
}

}  // namespace korvane
