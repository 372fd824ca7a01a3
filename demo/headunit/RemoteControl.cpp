#include "demo/headunit/RemoteControl.h"

#include <vector>

#include "platform/Files.h"
#include "platform/InterprocessLock.h"
#include "platform/Simulation.h"

#include "tools/headunitctl/HeadUnitWindow.h"

namespace korvane::demo {

namespace {

constexpr wchar_t kStarting[] = L"headUnit";
constexpr unsigned kPatienceMs = 2000;

/// More than any sequence of touches causes; a bound, should messages come without end.
constexpr int kMostWaiting = 10000;

/// Handles what waits in the queue, so that a picture shows what was done before it was asked for.
void CatchUp() {
    MSG msg;
    for (int i = 0; i < kMostWaiting && PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE); ++i) {
        if (msg.message == WM_QUIT) {
            PostQuitMessage(static_cast<int>(msg.wParam));
            return;
        }
        TranslateMessage(&msg);
        DispatchMessageW(&msg);
    }
}

bool SavePicture(const wchar_t* file) {
    CLQSurfHandle& screen = CLQScreen::GetInstance()->GetScreenSurfHandle();
    std::vector<unsigned char> bytes(static_cast<std::size_t>(screen.CalcStoreMemSize()));
    return !bytes.empty() &&
           screen.SaveSurface(bytes.data(), static_cast<int>(bytes.size())) == eError_None &&
           CreateDir(L"\\Temp") && ReplaceFileAtomically(file, bytes.data(), bytes.size());
}

LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    CLQScreen* const screen = CLQScreen::GetInstance();
    switch (message) {
        case WM_LBUTTONDOWN:
        case WM_MOUSEMOVE:
        case WM_LBUTTONUP:
            PostInput(screen->GetHWND(), message, wParam, lParam);
            return 0;
        case tools::kRequestScreenSize:
            return MAKELPARAM(screen->GetWidth(), screen->GetHeight());
        case tools::kRequestPicture:
            CatchUp();
            // Where messages keep coming, the loop paints late.
            screen->Paint();
            return SavePicture(tools::PictureFile(wParam).c_str());
        default:
            return DefWindowProcW(window, message, wParam, lParam);
    }
}

/// Pictures that nobody has fetched, since who asked for them was killed.
void RemoveOldPictures() {
    WIN32_FIND_DATAW found;
    const HANDLE search = FindFirstFileW(L"\\Temp\\HeadUnit-*.lqi", &found);
    if (search == INVALID_HANDLE_VALUE)
        return;
    do {
        DeleteFileW((std::wstring(L"\\Temp\\") + found.cFileName).c_str());
    } while (FindNextFileW(search, &found));
    FindClose(search);
}

bool RegisterRemoteClass() {
    static const bool registered = [] {
        WNDCLASSW description = {};
        description.lpfnWndProc = &WindowProc;
        description.lpszClassName = tools::kHeadUnitClass;
        return RegisterClassW(&description) != 0;
    }();
    return registered;
}

}  // namespace

RemoteControl::~RemoteControl() {
    if (window_)
        DestroyWindow(window_);
}

bool RemoteControl::IsTaken() {
    return FindWindowW(tools::kHeadUnitClass, nullptr) != nullptr;
}

bool RemoteControl::Open() {
    // Of two that start at once, one finds the other's window.
    const InterprocessLock starting(kStarting, kPatienceMs);
    if (IsTaken())
        return false;
    if (!RegisterRemoteClass())
        return true;
    RemoveOldPictures();
    window_ = CreateWindowExW(0, tools::kHeadUnitClass, tools::kHeadUnitClass, WS_POPUP, 0, 0, 0, 0, nullptr,
                              nullptr, nullptr, nullptr);
    return true;
}

}  // namespace korvane::demo
