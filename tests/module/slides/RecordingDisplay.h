#pragma once

#include <cstdint>

namespace korvane::test {

/// What a display is given: the whole screen's pixels without gaps between rows of `stride`, and the
/// rectangle that becomes visible.
using PresentSink = void (*)(const std::uint32_t* pixels, int stride, int left, int top, int right,
                             int bottom);

/// The display module "recorder" exports a function of this type and name. Each Present goes to the sink;
/// null, as at first: nowhere.
using SetPresentSink = void (*)(PresentSink sink);
constexpr wchar_t kSetPresentSinkName[] = L"RecorderSetSink";

}  // namespace korvane::test
