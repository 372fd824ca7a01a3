#include "platform/posix/display/ModuleDisplay.h"

#include <dlfcn.h>
#include <string>

#include "platform/DisplayModule.h"
#include "platform/Simulation.h"
#include "platform/posix/display/ActiveDisplay.h"
#include "platform/posix/files/OwnFolder.h"

namespace korvane {
namespace {

bool PostInputOfAge(HWND owner, UINT message, WPARAM wParam, LPARAM lParam, DWORD ageMs) {
    // On the manual clock the real age means nothing.
    const DWORD age = IsManualClock() ? 0 : ageMs;
    return PostInputAt(owner, message, wParam, lParam, GetTickCount() - age);
}

void InvalidateOwner(HWND owner) {
    InvalidateRect(owner, nullptr, FALSE);
}

void KeepFailure(const char* text) {
    FailDisplay(text);
}

}  // namespace

ModuleDisplay::~ModuleDisplay() {
    DeactivateDisplay(this);
}

bool ModuleDisplay::Open(int width, int height, const wchar_t* title, HWND owner) {
    if (!MayActivateDisplay(this, owner))
        return false;
    // What opens anew must not be woken halfway through.
    DeactivateDisplay(this);
    if (!inner_->Open(width, height, title, owner))
        return false;
    ActivateDisplay(this);
    return true;
}

std::unique_ptr<Display> LoadDisplayModule(const char* name) {
    static constexpr DisplayHost kHost{&PostInputOfAge, &InvalidateOwner, &KeepFailure};
    const std::string path = OwnFolder() + "korvane-display-" + name + ".so";
    void* const module = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!module) {
        const char* const reason = dlerror();
        FailDisplay(reason ? reason : path.c_str());
        return nullptr;
    }
    const auto entry = reinterpret_cast<DisplayModuleEntry>(dlsym(module, kDisplayModuleEntryName));
    std::unique_ptr<Display> inner(entry ? entry(kDisplayModuleVersion, &kHost) : nullptr);
    if (!inner) {
        FailDisplay((path + " is no display module of this version").c_str());
        return nullptr;
    }
    return std::make_unique<ModuleDisplay>(std::move(inner));
}

}  // namespace korvane
