#include "platform/windows/memory/ObjectName.h"

#include "platform/DeviceKey.h"
#include "platform/Unicode.h"
#include "platform/memory/SharedName.h"

namespace korvane {

std::wstring ObjectPrefix() {
    return L"Local\\korvane-" + FromUtf8(DeviceKey()) + L'-';
}

std::wstring ObjectName(const wchar_t* kind, const wchar_t* name) {
    const std::string plain = SharedName(name);
    return plain.empty() ? std::wstring() : ObjectPrefix() + kind + L'-' + FromUtf8(plain);
}

}  // namespace korvane
