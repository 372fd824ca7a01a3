#include "platform/Export.h"
#include "sysinfo/SysInfo.h"

// A service that counts the calls that it gets. Its variants lack an entry point each: there the name of one
// of these functions is a macro for another name.

namespace {

int calls = 0;
_LQSysInfo record = {};

}  // namespace

extern "C" {

KORVANE_EXPORTED int StubCalls() {
    return calls;
}
KORVANE_EXPORTED _LQSysInfo* StubRecord() {
    return &record;
}

KORVANE_EXPORTED _LQSysInfo* LQ_GetSysInfo() {
    ++calls;
    return KORVANE_STUB_RECORD;
}
KORVANE_EXPORTED int LQ_ReleaseSysInfo() {
    return ++calls;
}
KORVANE_EXPORTED int LQ_InitSetupInfo() {
    return ++calls;
}
KORVANE_EXPORTED int LQ_GetSetupValue() {
    return ++calls;
}
KORVANE_EXPORTED int LQ_SetSetupValue() {
    return ++calls;
}
KORVANE_EXPORTED int LQ_GetSetupValueStr() {
    return ++calls;
}
KORVANE_EXPORTED int LQ_SetSetupValueStr() {
    return ++calls;
}
KORVANE_EXPORTED int LQ_ReleaseSetupInfo() {
    return ++calls;
}
KORVANE_EXPORTED int LQ_GetThumbNail() {
    return ++calls;
}
KORVANE_EXPORTED int LQ_ReleaseThumbNail() {
    return ++calls;
}
}
