#pragma once

#include <string>

#include "KorvaneEx.h"

namespace korvane::demo {

/// Gives an image element of a button a picture for each state: "<name>_n.lqi" for the normal one, _p while
/// it is pressed, _f with the focus of the keys, _d when disabled. Element 0 is the one that a button has
/// from the start.
void SetButtonLooks(CLQButton& button, int element, const std::wstring& name);

}  // namespace korvane::demo
