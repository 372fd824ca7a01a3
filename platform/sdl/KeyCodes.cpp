#include "platform/sdl/KeyCodes.h"

#include "platform/coredll.h"

namespace korvane {

int VirtualKeyOf(SDL_Keycode key) {
    if (key >= SDLK_0 && key <= SDLK_9)
        return key;
    if (key >= SDLK_a && key <= SDLK_z)
        return key - SDLK_a + 'A';
    if (key >= SDLK_F1 && key <= SDLK_F12)
        return VK_F1 + (key - SDLK_F1);
    switch (key) {
        case SDLK_BACKSPACE:
            return VK_BACK;
        case SDLK_TAB:
            return VK_TAB;
        case SDLK_RETURN:
        case SDLK_KP_ENTER:
            return VK_RETURN;
        case SDLK_ESCAPE:
        case SDLK_AC_BACK:
            return VK_ESCAPE;
        case SDLK_SPACE:
            return VK_SPACE;
        case SDLK_PAGEUP:
            return VK_PRIOR;
        case SDLK_PAGEDOWN:
            return VK_NEXT;
        case SDLK_END:
            return VK_END;
        case SDLK_HOME:
            return VK_HOME;
        case SDLK_LEFT:
            return VK_LEFT;
        case SDLK_UP:
            return VK_UP;
        case SDLK_RIGHT:
            return VK_RIGHT;
        case SDLK_DOWN:
            return VK_DOWN;
        case SDLK_INSERT:
            return VK_INSERT;
        case SDLK_DELETE:
            return VK_DELETE;
        default:
            return 0;
    }
}

}  // namespace korvane
