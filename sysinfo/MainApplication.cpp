#include "sysinfo/MainApplication.h"

namespace korvane {

void RequestKeyBeep() {
    static const HWND mainWindow = FindWindowW(nullptr, kMainWindowName);
    if (mainWindow)
        PostMessageW(mainWindow, kMainKeyBeep, 0, 0);
}

}  // namespace korvane
