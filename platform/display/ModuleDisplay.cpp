#include "platform/display/ModuleDisplay.h"

#include <string>
#include <utility>

#include "platform/Simulation.h"
#include "platform/clock/Clock.h"
#include "platform/display/ActiveDisplay.h"
#include "platform/display/SystemDisplay.h"

namespace korvane {
namespace {

bool PostInputOfAge(HWND owner, UINT message, WPARAM wParam, LPARAM lParam, DWORD ageMs) {
    // On the manual clock the real age means nothing.
    const DWORD age = IsManualClock() ? 0 : ageMs;
    return PostInputAt(owner, message, wParam, lParam, TickCount() - age);
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
    HideOwner(owner, width, height);
    ActivateDisplay(this, owner);
    return true;
}

std::unique_ptr<Display> CreateModuleDisplay(const char* name) {
    static constexpr DisplayHost kHost{&PostInputOfAge, &InvalidateOwner, &KeepFailure};
    const DisplayModuleEntry entry = LoadDisplayModule(name);
    if (!entry)
        return nullptr;
    std::unique_ptr<Display> inner(entry(kDisplayModuleVersion, &kHost));
    if (inner)
        return std::make_unique<ModuleDisplay>(std::move(inner));
    FailDisplay((std::string("the display module of \"") + name + "\" is of another version").c_str());
    return nullptr;
}

}  // namespace korvane
