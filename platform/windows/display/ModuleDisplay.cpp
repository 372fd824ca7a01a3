#include "platform/windows/display/ModuleDisplay.h"

#include <string>

#include "platform/DisplayModule.h"
#include "platform/Simulation.h"
#include "platform/Unicode.h"
#include "platform/display/SystemDisplay.h"
#include "platform/windows/display/ActiveDisplay.h"
#include "platform/windows/files/OwnFolder.h"

namespace korvane {
namespace {

bool PostInputOfAge(HWND owner, UINT message, WPARAM wParam, LPARAM lParam, DWORD ageMs) {
    // On the manual clock the real age means nothing.
    const DWORD age = IsManualClock() ? 0 : ageMs;
    return PostInputAt(owner, message, wParam, lParam, desktop::GetTickCount() - age);
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
    DeactivateDisplay(this);
    if (!inner_->Open(width, height, title, owner))
        return false;
    HideOwner(owner, width, height);
    ActivateDisplay(this, owner);
    return true;
}

std::unique_ptr<Display> LoadDisplayModule(const char* name) {
    static constexpr DisplayHost kHost{&PostInputOfAge, &InvalidateOwner, &KeepFailure};
    const std::wstring path = OwnFolder() + L"korvane-display-" + FromUtf8(name) + L".dll";
    const HMODULE module = LoadLibraryW(path.c_str());
    if (!module) {
        FailDisplay(("cannot load " + ToUtf8(path)).c_str());
        return nullptr;
    }
    const auto entry = reinterpret_cast<DisplayModuleEntry>(
        reinterpret_cast<void*>(GetProcAddress(module, kDisplayModuleEntryName)));
    std::unique_ptr<Display> inner(entry ? entry(kDisplayModuleVersion, &kHost) : nullptr);
    if (!inner) {
        FailDisplay((ToUtf8(path) + " is no display module of this version").c_str());
        return nullptr;
    }
    return std::make_unique<ModuleDisplay>(std::move(inner));
}

}  // namespace korvane
