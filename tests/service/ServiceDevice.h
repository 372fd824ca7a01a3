#pragma once

#include <filesystem>
#include <gtest/gtest.h>
#include <string>

#include "platform/coredll.h"
#include "sysinfo/SysInfo.h"

#include "tests/platform/DeviceFolder.h"

namespace korvane::test {

/// A scratch device with the service, which is loaded and called as every program does it.
class ServiceDevice : public testing::Test {
  protected:
    ServiceDevice();
    ~ServiceDevice() override;

    /// What a restart of the device leaves of the service: its file. Only processes that are forked after it
    /// and this one's first use of the service find the memory anew.
    static void Restart();

    std::filesystem::path SetupFile() const;
    std::string ReadSetupFile() const;
    void WriteSetupFile(const std::string& contents) const;

    /// The text under a name, "(none)" when there is none.
    std::wstring Text(const wchar_t* name) const;

    DeviceFolder device;

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
