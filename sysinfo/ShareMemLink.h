#pragma once

#include <cstddef>

#include "platform/Export.h"
#include "platform/coredll.h"
#include "sysinfo/SysInfo.h"

/// The link to the system-information service, a library that is loaded at run time.
///
/// A new link is empty. It has no destructor, so that it can be copied as it is: whoever loaded it unloads
/// it, and copies are not used after that.
struct KORVANEEX_API CLQShareMemLink {
    HMODULE hModule = nullptr;  ///< the service library; null while not loaded
    _LQSysInfo* (*pfnGetSysInfo)() = nullptr;
    FARPROC pfnReleaseSysInfo = nullptr;
    FARPROC pfnInitSetupInfo = nullptr;
    FARPROC pfnGetSetupValue = nullptr;
    FARPROC pfnSetSetupValue = nullptr;
    FARPROC pfnGetSetupValueStr = nullptr;
    FARPROC pfnSetSetupValueStr = nullptr;
    FARPROC pfnReleaseSetupInfo = nullptr;
    /// Gives the address of the shared picture buffer of at least that many bytes; 0 when it has fewer.
    int (*pfnGetThumbNail)(unsigned int size, unsigned char** buffer) = nullptr;
    FARPROC pfnReleaseThumbNail = nullptr;
    /// Owned; stands in for the service's record when the service has no LQ_GetSysInfo.
    _LQSysInfo* pFallbackInfo = nullptr;

    /// Loads the service and looks up its entry points. True when all ten are there; with some missing the
    /// others can be used all the same. A link that is loaded already stays as it is and gives false: that
    /// reads like a failure, and is meant.
    bool Load();

    /// The service's record, or one that stands in for it; null when the service has none to give. The
    /// service is asked at every call.
    _LQSysInfo* GetSysInfo();

    /// Empties the link. Always true.
    bool Unload();
};

static_assert(sizeof(CLQShareMemLink) == 12 * sizeof(void*) &&
                  offsetof(CLQShareMemLink, pfnGetSysInfo) == sizeof(void*) &&
                  offsetof(CLQShareMemLink, pfnGetThumbNail) == 9 * sizeof(void*) &&
                  offsetof(CLQShareMemLink, pFallbackInfo) == 11 * sizeof(void*),
              "the link's layout is fixed: it is part of classes that applications derive from");
