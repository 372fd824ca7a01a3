#include "module/SysBeep.h"

#include "sysinfo/MainApplication.h"

void SysBeep() {
    korvane::RequestKeyBeep();
}
