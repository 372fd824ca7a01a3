#include "platform/display/SystemDisplay.h"

#include <string_view>

#include "platform/posix/display/ModuleDisplay.h"

namespace korvane {
namespace {

// Small letters and digits only, so that a name cannot lead to another folder.
bool IsModuleName(std::string_view name) {
    return !name.empty() && name.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789") == name.npos;
}

}  // namespace

std::unique_ptr<Display> CreateSystemDisplay(const char* name) {
    if (name && IsModuleName(name))
        return LoadDisplayModule(name);
    FailDisplay("there is no display of that name");
    return nullptr;
}

// Nobody sees the windows of this system but in a display.
void HideOwner(HWND, int, int) {}

const char* DefaultDisplay() {
    return "sdl";
}

}  // namespace korvane
