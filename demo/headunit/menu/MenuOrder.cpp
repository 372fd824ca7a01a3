#include "demo/headunit/menu/MenuOrder.h"

#include <algorithm>
#include <iterator>
#include <string>

#include "KorvaneEx.h"

namespace korvane::demo {

namespace {

constexpr wchar_t kFile[] = L"\\NandFlash\\Application\\Profile\\LQ_MenuOrder.ini";
constexpr wchar_t kSection[] = L"Menu";

/// The items' names in the file, in the order of MenuItem.
constexpr const wchar_t* kNames[kMenuItems] = {L"radio",  L"media", L"sources",
                                               L"gauges", L"files", L"settings"};

std::wstring KeyOf(std::size_t place) {
    return std::to_wstring(place + 1);
}

}  // namespace

void MenuOrder::Load() {
    CLQIniReadWrite file;
    file.SetFileName(kFile);
    Items kept;
    for (std::size_t place = 0; place < kMenuItems; ++place) {
        const std::wstring name = file.GetString(kSection, KeyOf(place).c_str(), L"");
        const auto* const found = std::find(std::begin(kNames), std::end(kNames), name);
        if (found == std::end(kNames))
            return;
        kept[place] = static_cast<MenuItem>(found - std::begin(kNames));
    }
    if (std::is_permutation(kept.begin(), kept.end(), items_.begin()))
        items_ = kept;
}

void MenuOrder::Move(MenuItem item, std::size_t place) {
    const auto from = items_.begin() + static_cast<std::ptrdiff_t>(PlaceOf(item));
    const auto to = items_.begin() + static_cast<std::ptrdiff_t>(place);
    if (from < to)
        std::rotate(from, from + 1, to + 1);
    else
        std::rotate(to, from, from + 1);
    Keep();
}

std::size_t MenuOrder::PlaceOf(MenuItem item) const {
    return static_cast<std::size_t>(std::find(items_.begin(), items_.end(), item) - items_.begin());
}

void MenuOrder::Keep() const {
    CLQIniReadWrite file;
    file.SetFileName(kFile);
    for (std::size_t place = 0; place < kMenuItems; ++place) {
        const wchar_t* const name = kNames[static_cast<std::size_t>(items_[place])];
        file.SetValue(kSection, KeyOf(place).c_str(), name, true);
    }
    file.Update();
}

}  // namespace korvane::demo
