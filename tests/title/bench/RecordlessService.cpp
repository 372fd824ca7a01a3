#include "service/SysInfoService.h"

// A service that has no memory for its record, and lacks its other entry points.

_LQSysInfo* LQ_GetSysInfo() {
    return nullptr;
}
