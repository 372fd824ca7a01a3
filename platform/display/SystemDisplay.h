#pragma once

#include "platform/DisplayModule.h"

/// What the displays need of the system under them.
namespace korvane {

/// A display that shows something, by its name. Null, with DisplayFailure saying why, when there is none of
/// that name.
std::unique_ptr<Display> CreateSystemDisplay(const char* name);

/// Loads the module "korvane-display-<name>" that lies beside this library, and gives its entry. Null, with
/// DisplayFailure saying why, when it cannot. The module stays loaded: what it brought with it may not be
/// unloadable.
DisplayModuleEntry LoadDisplayModule(const char* name);

/// Shows the owner of a display that does not show it, if there is one, such that what is invalidated of it
/// is painted while its user sees nothing of it, `width` by `height` pixels large. Leaves the focus where it
/// is.
void HideOwner(HWND owner, int width, int height);

}  // namespace korvane
