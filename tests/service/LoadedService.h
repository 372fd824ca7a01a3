#pragma once

#include <string>

#include "platform/coredll.h"
#include "sysinfo/SysInfo.h"

namespace korvane::test {

/// The service of the device, loaded and called as every program does it.
class LoadedService {
  public:
    /// Throws when the device has none, or one that lacks an entry point.
    LoadedService();
    ~LoadedService();
    LoadedService(const LoadedService&) = delete;
    LoadedService& operator=(const LoadedService&) = delete;

    /// The text under a name, "(none)" when there is none.
    std::wstring Text(const wchar_t* name) const;

    _LQSysInfo* (*getSysInfo)() = nullptr;
    int (*releaseSysInfo)() = nullptr;
    int (*initSetupInfo)() = nullptr;
    int (*getSetupValue)(const wchar_t*, int) = nullptr;
    int (*setSetupValue)(const wchar_t*, int) = nullptr;
    int (*getSetupValueStr)(const wchar_t*, wchar_t*, int) = nullptr;
    int (*setSetupValueStr)(const wchar_t*, const wchar_t*) = nullptr;
    int (*releaseSetupInfo)() = nullptr;
    int (*getThumbNail)(unsigned int, unsigned char**) = nullptr;
    int (*releaseThumbNail)() = nullptr;

  private:
    template <class Function>
    void Find(const wchar_t* name, Function& function) const;

    HMODULE library_ = nullptr;
};

}  // namespace korvane::test
