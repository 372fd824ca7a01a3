#include "service/FieldNames.h"

#include <algorithm>
#include <iterator>

#include "platform/CaseFold.h"

namespace korvane {

const SysInfoField* FindField(const wchar_t* name) {
    if (!name)
        return nullptr;
    const auto* const found =
        std::find_if(std::begin(kSysInfoFields), std::end(kSysInfoFields),
                     [name](const SysInfoField& field) { return EqualFolded(field.name, name); });
    return found == std::end(kSysInfoFields) ? nullptr : found;
}

bool IsLasting(const SysInfoField& field) {
    return field.offset == offsetof(_LQSysInfo, language) || field.offset == offsetof(_LQSysInfo, clock24h);
}

}  // namespace korvane
