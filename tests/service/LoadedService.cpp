#include "tests/service/LoadedService.h"

#include <stdexcept>

namespace korvane::test {

LoadedService::LoadedService() : library_(LoadLibraryW(L"\\NandFlash\\Application\\Bin\\LQ_ShareMem.dll")) {
    Find(L"LQ_GetSysInfo", getSysInfo);
    Find(L"LQ_ReleaseSysInfo", releaseSysInfo);
    Find(L"LQ_InitSetupInfo", initSetupInfo);
    Find(L"LQ_GetSetupValue", getSetupValue);
    Find(L"LQ_SetSetupValue", setSetupValue);
    Find(L"LQ_GetSetupValueStr", getSetupValueStr);
    Find(L"LQ_SetSetupValueStr", setSetupValueStr);
    Find(L"LQ_ReleaseSetupInfo", releaseSetupInfo);
    Find(L"LQ_GetThumbNail", getThumbNail);
    Find(L"LQ_ReleaseThumbNail", releaseThumbNail);
}

LoadedService::~LoadedService() {
    FreeLibrary(library_);
}

std::wstring LoadedService::Text(const wchar_t* name) const {
    const int length = getSetupValueStr(name, nullptr, 0);
    if (length < 0)
        return L"(none)";
    std::wstring text(static_cast<std::size_t>(length) + 1, L'?');
    if (getSetupValueStr(name, text.data(), length + 1) != length || text.back() != L'\0')
        throw std::runtime_error("a text is not as long as the service says");
    text.pop_back();
    return text;
}

template <class Function>
void LoadedService::Find(const wchar_t* name, Function& function) const {
    function = reinterpret_cast<Function>(reinterpret_cast<void (*)()>(GetProcAddressW(library_, name)));
    if (!function)
        throw std::runtime_error("the service lacks an entry point");
}

}  // namespace korvane::test
