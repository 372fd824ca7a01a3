#include "platform/display/SystemDisplay.h"

#include "platform/display/ModuleName.h"
#include "platform/posix/display/ModuleDisplay.h"

namespace korvane {

std::unique_ptr<Display> CreateSystemDisplay(const char* name) {
    if (name && IsDisplayModuleName(name))
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
