#include "tools/systemservice/SystemService.h"

#include "service/SysInfoService.h"

namespace korvane::tools {

namespace {

/// An entry point of the link as the function that it is.
template <class Function>
Function* As(FARPROC entry) {
    // By way of the type that compilers take to stand for any function.
    return reinterpret_cast<Function*>(reinterpret_cast<void (*)()>(entry));
}

}  // namespace

SystemService::SystemService() : complete_(link_.Load()) {}

SystemService::~SystemService() {
    link_.Unload();
}

const _LQSysInfo* SystemService::Record() {
    return link_.pfnGetSysInfo ? link_.pfnGetSysInfo() : nullptr;
}

bool SystemService::SetValue(const wchar_t* name, int value) {
    const auto set = As<decltype(LQ_SetSetupValue)>(link_.pfnSetSetupValue);
    return set && set(name, value) != 0;
}

int SystemService::Value(const wchar_t* name, int fallback) {
    const auto get = As<decltype(LQ_GetSetupValue)>(link_.pfnGetSetupValue);
    return get ? get(name, fallback) : fallback;
}

}  // namespace korvane::tools
