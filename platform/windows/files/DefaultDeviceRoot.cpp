#include "platform/files/DefaultDeviceRoot.h"

#include "platform/Unicode.h"
#include "platform/windows/System.h"
#include "platform/windows/files/OwnFolder.h"

namespace korvane {
namespace {

std::wstring EnvironmentVariable(const wchar_t* name) {
    std::wstring value(GetEnvironmentVariableW(name, nullptr, 0), L'\0');
    value.resize(GetEnvironmentVariableW(name, value.data(), static_cast<DWORD>(value.size())));
    return value;
}

}  // namespace

std::string DefaultDeviceRoot() {
    const std::wstring chosen = EnvironmentVariable(L"KORVANE_DEVICE_ROOT");
    if (!chosen.empty())
        return ToUtf8(chosen);
    const std::wstring built = OwnFolder() + L"device";
    const DWORD attributes = GetFileAttributesW(built.c_str());
    const bool exists = attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    return exists ? ToUtf8(built) : std::string();
}

}  // namespace korvane
