#pragma once

#include "platform/windows/System.h"

namespace korvane {

/// The extended style by which the owner of a display without a panel neither shows nor feels anything.
constexpr LONG_PTR kHiddenStyle = WS_EX_LAYERED | WS_EX_TRANSPARENT | WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE;

}  // namespace korvane
