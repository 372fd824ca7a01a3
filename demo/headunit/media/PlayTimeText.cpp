#include "demo/headunit/media/PlayTimeText.h"

#include <algorithm>
#include <cwchar>
#include <iterator>

namespace korvane::demo {

std::wstring PlayTimeText(int seconds) {
    const int whole = std::max(seconds, 0);
    const int hours = whole / 3600;
    const int minutes = whole / 60 % 60;
    wchar_t text[24] = L"";
    if (hours > 0)
        std::swprintf(text, std::size(text), L"%d:%02d:%02d", hours, minutes, whole % 60);
    else
        std::swprintf(text, std::size(text), L"%d:%02d", minutes, whole % 60);
    return text;
}

}  // namespace korvane::demo
