#include "platform/display/SystemDisplay.h"

#include <dlfcn.h>
#include <string>

#include "platform/display/ModuleDisplay.h"
#include "platform/display/ModuleName.h"
#include "platform/posix/files/OwnFolder.h"

namespace korvane {

std::unique_ptr<Display> CreateSystemDisplay(const char* name) {
    if (name && IsDisplayModuleName(name))
        return CreateModuleDisplay(name);
    FailDisplay("there is no display of that name");
    return nullptr;
}

DisplayModuleEntry LoadDisplayModule(const char* name) {
    const std::string path = OwnFolder() + "korvane-display-" + name + ".so";
    void* const module = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    void* const entry = module ? dlsym(module, kDisplayModuleEntryName) : nullptr;
    if (!entry) {
        const char* const reason = dlerror();
        FailDisplay(reason ? reason : path.c_str());
    }
    return reinterpret_cast<DisplayModuleEntry>(entry);
}

// Nobody sees the windows of this system but in a display.
void HideOwner(HWND owner, int, int) {
    ShowWindow(owner, SW_SHOWNA);
}

const char* DefaultDisplay() {
    return "sdl";
}

}  // namespace korvane
