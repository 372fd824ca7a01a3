#include "platform/Simulation.h"

namespace korvane::desktop {

BOOL MessageBeep(UINT kind) {
    if (!IsManualClock())
        return ::MessageBeep(kind);
    SetLastError(ERROR_NOT_SUPPORTED);
    return FALSE;
}

}  // namespace korvane::desktop
