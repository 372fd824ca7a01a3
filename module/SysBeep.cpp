#include "module/SysBeep.h"

#include "platform/coredll.h"

namespace {

/// The main application's window; the spelling is the one that it uses.
constexpr wchar_t kMainWindowTitle[] = L"NavigRecive";
constexpr UINT kKeyBeep = WM_USER + 113;

}  // namespace

void SysBeep() {
    // Looked up once, also when it is not found: who beeps before the main application is up stays silent.
    static const HWND mainWindow = FindWindowW(nullptr, kMainWindowTitle);
    if (mainWindow)
        PostMessageW(mainWindow, kKeyBeep, 0, 0);
}
