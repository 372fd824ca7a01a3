#pragma once

#include "KorvaneEx.h"

namespace korvane::demo {

/// What the head unit posts to the main application when the user changes a setting, beside what the controls
/// post. wParam: the number of an item of the system record, see korvane::SysInfoItem; lParam: its new value.
/// The clock's form, mute, traffic announcements, alternative frequencies and the language can be changed so.
constexpr UINT kMainSettingChosen = 1144;

}  // namespace korvane::demo
