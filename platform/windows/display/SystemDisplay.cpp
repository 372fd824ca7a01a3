#include "platform/display/SystemDisplay.h"

#include <string>
#include <string_view>

#include "platform/Unicode.h"
#include "platform/display/ModuleDisplay.h"
#include "platform/display/ModuleName.h"
#include "platform/windows/WithoutMessages.h"
#include "platform/windows/display/HiddenOwner.h"
#include "platform/windows/display/Win32Display.h"
#include "platform/windows/files/OwnFolder.h"

namespace korvane {
namespace {

// A pixel of the screen is one of the panel's, whatever magnification the user has chosen. Older systems know
// only a part of this, or nothing. A program that has declared itself in another way keeps that.
void RefuseMagnification() {
    using SetContext = BOOL(WINAPI*)(HANDLE);
    using SetAware = BOOL(WINAPI*)();
    const HANDLE kPerMonitor = reinterpret_cast<HANDLE>(static_cast<INT_PTR>(-4));
    const HMODULE user = GetModuleHandleW(L"user32.dll");
    const auto find = [user](const char* name) {
        return reinterpret_cast<void*>(GetProcAddress(user, name));
    };
    const auto setContext = reinterpret_cast<SetContext>(find("SetProcessDpiAwarenessContext"));
    if (setContext && setContext(kPerMonitor))
        return;
    if (const auto setAware = reinterpret_cast<SetAware>(find("SetProcessDPIAware")))
        setAware();
}

}  // namespace

std::unique_ptr<Display> CreateSystemDisplay(const char* name) {
    if (std::string_view(name ? name : "") == DefaultDisplay()) {
        RefuseMagnification();
        return std::make_unique<Win32Display>();
    }
    if (name && IsDisplayModuleName(name))
        return CreateModuleDisplay(name);
    FailDisplay("there is no display of that name");
    return nullptr;
}

DisplayModuleEntry LoadDisplayModule(const char* name) {
    const std::wstring path = OwnFolder() + L"korvane-display-" + FromUtf8(name) + L".dll";
    const WithoutMessages silence;
    const HMODULE module = LoadLibraryW(path.c_str());
    const FARPROC entry = module ? GetProcAddress(module, kDisplayModuleEntryName) : nullptr;
    if (!entry)
        FailDisplay((ToUtf8(path) + (module ? " is no display module" : " cannot be loaded")).c_str());
    return reinterpret_cast<DisplayModuleEntry>(reinterpret_cast<void*>(entry));
}

// A hidden window would not be painted. One that lets everything through looks and feels like none.
void HideOwner(HWND owner, int width, int height) {
    if (!owner)
        return;
    ShowWindow(owner, SW_HIDE);
    SetWindowLongPtrW(owner, GWL_EXSTYLE, GetWindowLongPtrW(owner, GWL_EXSTYLE) | kHiddenStyle);
    SetLayeredWindowAttributes(owner, 0, 0, LWA_ALPHA);
    SetWindowPos(owner, HWND_BOTTOM, 0, 0, width, height, SWP_NOACTIVATE | SWP_NOMOVE | SWP_SHOWWINDOW);
}

const char* DefaultDisplay() {
    return "win32";
}

}  // namespace korvane
