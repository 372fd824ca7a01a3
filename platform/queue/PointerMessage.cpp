#include "platform/queue/PointerMessage.h"

namespace korvane {

bool CarriesPointers(UINT message) {
    switch (message) {
        case WM_CREATE:
        case WM_NCCREATE:
        case WM_SETTEXT:
        case WM_GETTEXT:
        case WM_GETTEXTLENGTH:
            return true;
        default:
            return false;
    }
}

}  // namespace korvane
