#pragma once

#include "platform/Display.h"

/// What the displays need of the system under them.
namespace korvane {

/// A display that shows something, by its name. Null, with DisplayFailure saying why, when there is none of
/// that name.
std::unique_ptr<Display> CreateSystemDisplay(const char* name);

/// Keeps the owner of a display without a panel, if there is one, out of its user's sight, `width` by
/// `height` pixels large. What is invalidated of it is still painted.
void HideOwner(HWND owner, int width, int height);

}  // namespace korvane
