#include "platform/memory/SharedName.h"

namespace korvane {

std::string SharedName(const wchar_t* name) {
    constexpr std::size_t kMaxLength = 64;
    std::string narrow;
    for (; name && *name; ++name) {
        const wchar_t c = *name;
        const bool plain = (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z') || (c >= L'0' && c <= L'9') ||
                           c == L'-' || c == L'_';
        if (!plain || narrow.size() == kMaxLength)
            return {};
        narrow += static_cast<char>(c);
    }
    return narrow;
}

}  // namespace korvane
