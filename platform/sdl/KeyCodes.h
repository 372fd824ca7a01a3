#pragma once

#include <SDL_keycode.h>

namespace korvane {

/// The virtual key code (VK_...) of a key, 0 for a key that has none here.
int VirtualKeyOf(SDL_Keycode key);

}  // namespace korvane
