#include "sysinfo/ShareMemLink.h"

namespace {

constexpr wchar_t kServiceLibrary[] = L"\\NandFlash\\Application\\Bin\\LQ_ShareMem.dll";

template <class Function>
bool Resolve(HMODULE library, const wchar_t* name, Function& slot) {
    // By way of the type that compilers take to stand for any function.
    slot = reinterpret_cast<Function>(reinterpret_cast<void (*)()>(GetProcAddressW(library, name)));
    return slot != nullptr;
}

/// What the strip shows without the service: two auxiliary inputs and nothing else.
_LQSysInfo StandByRecord() {
    _LQSysInfo record = {};
    record.aux1Present = 1;
    record.aux2Present = 2;
    return record;
}

}  // namespace

bool CLQShareMemLink::Load() {
    if (hModule)
        return false;
    hModule = LoadLibraryW(kServiceLibrary);
    if (!hModule)
        return false;
    bool complete = Resolve(hModule, L"LQ_GetSysInfo", pfnGetSysInfo);
    complete &= Resolve(hModule, L"LQ_ReleaseSysInfo", pfnReleaseSysInfo);
    complete &= Resolve(hModule, L"LQ_InitSetupInfo", pfnInitSetupInfo);
    complete &= Resolve(hModule, L"LQ_GetSetupValue", pfnGetSetupValue);
    complete &= Resolve(hModule, L"LQ_SetSetupValue", pfnSetSetupValue);
    complete &= Resolve(hModule, L"LQ_GetSetupValueStr", pfnGetSetupValueStr);
    complete &= Resolve(hModule, L"LQ_SetSetupValueStr", pfnSetSetupValueStr);
    complete &= Resolve(hModule, L"LQ_ReleaseSetupInfo", pfnReleaseSetupInfo);
    complete &= Resolve(hModule, L"LQ_GetThumbNail", pfnGetThumbNail);
    complete &= Resolve(hModule, L"LQ_ReleaseThumbNail", pfnReleaseThumbNail);
    return complete;
}

_LQSysInfo* CLQShareMemLink::GetSysInfo() {
    if (pfnGetSysInfo)
        return pfnGetSysInfo();
    if (!pFallbackInfo)
        pFallbackInfo = new _LQSysInfo(StandByRecord());
    return pFallbackInfo;
}

bool CLQShareMemLink::Unload() {
    const HMODULE library = hModule;
    delete pFallbackInfo;
    *this = CLQShareMemLink();
    if (library)
        FreeLibrary(library);
    return true;
}
