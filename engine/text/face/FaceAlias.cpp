#include "engine/text/face/FaceAlias.h"

#include <algorithm>
#include <iterator>

#include "platform/CaseFold.h"

namespace korvane {

namespace {

constexpr std::wstring_view kDefaultFamily = L"Noto Sans";
constexpr const wchar_t* kDefaultFile = L"NotoSans-Regular.ttf";
constexpr std::wstring_view kEastAsianFamily = L"WenQuanYi Micro Hei";
constexpr const wchar_t* kEastAsianFile = L"wqy-microhei.ttc";

constexpr FaceAlias kAliases[] = {
    {L"default", kDefaultFamily, kDefaultFile},
    {L"sans", kDefaultFamily, kDefaultFile},
    {L"msyh", kEastAsianFamily, kEastAsianFile},
};

}  // namespace

const FaceAlias* FindFaceAlias(std::wstring_view name) {
    const auto* found =
        std::find_if(std::begin(kAliases), std::end(kAliases),
                     [name](const FaceAlias& alias) { return EqualFolded(alias.name, name); });
    return found == std::end(kAliases) ? nullptr : found;
}

const FaceAlias& DefaultFaceAlias() {
    return kAliases[0];
}

}  // namespace korvane
