#pragma once

#include <string>

#include "platform/Export.h"

/// The device's wide form of GetProcAddress, which desktop Windows lacks. Exported names are plain ASCII: any
/// other name finds nothing.
inline FARPROC GetProcAddressW(HMODULE module, LPCWSTR name) {
    std::string narrow;
    for (; name && *name; ++name) {
        if (*name > 0x7F)
            return nullptr;
        narrow.push_back(static_cast<char>(*name));
    }
    return narrow.empty() ? nullptr : GetProcAddress(module, narrow.c_str());
}
