#pragma once

#include "KorvaneEx.h"

namespace korvane::demo {

/// Gives the buttons of the shortcut panel, which shows pictures by itself, the names of their sources, as
/// the user's settings have them at this moment.
void CaptionShortcuts(CLQGroupCtrl& panel);

}  // namespace korvane::demo
