#pragma once

#include <array>
#include <cstring>

#include "sysinfo/ShareMemLink.h"

namespace korvane::test {

/// The names of the ten entry points, in the order of their slots.
constexpr const wchar_t* kEntryPoints[10] = {
    L"LQ_GetSysInfo",    L"LQ_ReleaseSysInfo",   L"LQ_InitSetupInfo",    L"LQ_GetSetupValue",
    L"LQ_SetSetupValue", L"LQ_GetSetupValueStr", L"LQ_SetSetupValueStr", L"LQ_ReleaseSetupInfo",
    L"LQ_GetThumbNail",  L"LQ_ReleaseThumbNail"};

/// What a link is in memory: the library, the ten slots, the stand-by record.
using LinkWords = std::array<void*, 12>;
constexpr std::size_t kLibraryWord = 0;
constexpr std::size_t kFirstSlot = 1;
constexpr std::size_t kStandByWord = 11;

inline LinkWords WordsOf(const CLQShareMemLink& link) {
    static_assert(sizeof(link) == sizeof(LinkWords), "twelve words");
    LinkWords words;
    std::memcpy(words.data(), &link, sizeof(words));
    return words;
}

}  // namespace korvane::test
