#include "platform/posix/display/ModuleDisplay.h"

#include <climits>
#include <cstdlib>
#include <dlfcn.h>
#include <string>
#include <unistd.h>

#include "platform/DisplayModule.h"
#include "platform/Simulation.h"
#include "platform/posix/display/ActiveDisplay.h"

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

// The folder, with a slash at its end, of the file that holds this code: the library, or a program that has
// it linked in. The loader knows a program only by the name it was started with, which need not be a path.
std::string OwnFolder() {
    Dl_info info{};
    char path[PATH_MAX];
    const bool named = dladdr(reinterpret_cast<void*>(&InvalidateOwner), &info) != 0 && info.dli_fname &&
                       std::string(info.dli_fname).find('/') != std::string::npos &&
                       realpath(info.dli_fname, path);
    if (!named && !realpath("/proc/self/exe", path))
        return {};
    const std::string file = path;
    return file.substr(0, file.rfind('/') + 1);
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
