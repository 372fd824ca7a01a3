#include "platform/windows/files/OwnFolder.h"

#include "platform/windows/System.h"

namespace korvane {

std::wstring OwnFolder() {
    HMODULE module = nullptr;
    constexpr DWORD kByAddress =
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    GetModuleHandleExW(kByAddress, reinterpret_cast<LPCWSTR>(&OwnFolder), &module);
    constexpr DWORD kLongestPath = 32768;
    std::wstring path(kLongestPath, L'\0');
    path.resize(GetModuleFileNameW(module, path.data(), kLongestPath));
    return path.substr(0, path.rfind(L'\\') + 1);
}

}  // namespace korvane
