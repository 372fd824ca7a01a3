#include "demo/headunit/files/SizeText.h"

#include <iterator>

namespace korvane::demo {

std::wstring SizeText(std::uint64_t bytes) {
    constexpr std::uint64_t kStep = 1000;
    constexpr const wchar_t* kUnits[] = {L" B", L" kB", L" MB", L" GB", L" TB"};
    constexpr std::size_t kLast = std::size(kUnits) - 1;
    std::size_t unit = 0;
    std::uint64_t size = 1;  // of the unit
    while (unit < kLast && bytes / size >= kStep) {
        size *= kStep;
        ++unit;
    }
    std::wstring text = std::to_wstring(bytes / size);
    if (unit > 0)
        text += L"." + std::to_wstring(bytes % size * 10 / size);
    return text + kUnits[unit];
}

}  // namespace korvane::demo
