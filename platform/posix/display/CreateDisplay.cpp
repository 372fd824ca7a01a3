#include <string_view>

#include "platform/Display.h"
#include "platform/posix/display/ActiveDisplay.h"
#include "platform/posix/display/MemoryDisplay.h"
#include "platform/posix/display/ModuleDisplay.h"

namespace korvane {
namespace {

// Small letters and digits only, so that a name cannot lead to another folder.
bool IsModuleName(std::string_view name) {
    return !name.empty() && name.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789") == name.npos;
}

}  // namespace

std::unique_ptr<Display> CreateDisplay(const char* name) {
    const std::string_view wanted = name ? name : "";
    if (wanted == "memory")
        return std::make_unique<MemoryDisplay>();
    if (IsModuleName(wanted))
        return LoadDisplayModule(name);
    FailDisplay("there is no display of that name");
    return nullptr;
}

}  // namespace korvane
